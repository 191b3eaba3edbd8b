#include "picture/pacer.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace picture {

namespace {

constexpr double kNothingMs = 1e-6;  // sums of pauses are that exact

}  // namespace

Pacer::Pacer(platform::EventLoop& loop, double length, std::function<bool()> stopped)
    : loop_(loop),
      stopped_(std::move(stopped)),
      due_(loop.Milliseconds()),
      end_(due_ + length),
      frame_(due_) {}

void Pacer::Pause(double milliseconds) {
    if (stopped_()) {
        return;
    }
    due_ += milliseconds;
    double now = loop_.Milliseconds();
    if (due_ <= now + kNothingMs) {
        if (now - frame_ >= kFrameMs) {
            loop_.PumpEvents();
            frame_ = loop_.Milliseconds();
        }
        return;
    }
    while (due_ > now + kNothingMs) {
        loop_.PumpEvents();
        if (stopped_()) {
            return;
        }
        // To the end of the frame, though not beyond that of the course. Handlers and painting may
        // have taken longer; then there is nothing to sleep.
        now = loop_.Milliseconds();
        const double rest = std::min(frame_ + kFrameMs, end_) - now;
        if (rest > kNothingMs) {
            loop_.Sleep(static_cast<int>(std::ceil(rest - kNothingMs)));
        } else if (due_ > now + kNothingMs) {
            loop_.Sleep(1);
        }
        now = frame_ = loop_.Milliseconds();
    }
}

}  // namespace picture

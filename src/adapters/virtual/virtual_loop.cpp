#include "adapters/virtual/virtual_loop.h"

#include <algorithm>
#include <cmath>

namespace virtual_adapter {

namespace {

constexpr int kCallsPerMillisecond = 10000;
/// A last action whose handler waits longer than this waits for somebody who will not come.
constexpr double kLongestLastAction = 3600.0 * 1000;
constexpr int64_t kSecondsPerDay = 86400;

/// Puts a value on a stack for as long as a scope lasts.
class Pushed {
public:
    Pushed(std::vector<double>& stack, double value) : stack_(stack) { stack_.push_back(value); }
    ~Pushed() { stack_.pop_back(); }
    Pushed(const Pushed&) = delete;
    Pushed& operator=(const Pushed&) = delete;

private:
    std::vector<double>& stack_;
};

}  // namespace

VirtualLoop::VirtualLoop(platform::DateTime begin, uint64_t seed) : start(begin), random_(seed) {}

void VirtualLoop::PumpEvents() {
    CountCall();
    // What becomes due while this pump runs waits for the next one, or a handler that sleeps
    // longer than its interval would keep the pump for ever.
    const double until = now_;
    if (anyActionRan_) {
        EndAfterLastAction();
    }
    while (RunOne(until, false)) {
        if (anyActionRan_) {
            EndAfterLastAction();
        }
    }
}

void VirtualLoop::Sleep(int milliseconds) {
    if (milliseconds > 0) {
        MoveTo(now_ + milliseconds);
    }
}

double VirtualLoop::Timer() {
    CountCall();
    const int64_t midnight = (start.seconds % kSecondsPerDay + kSecondsPerDay) % kSecondsPerDay;
    return std::fmod(static_cast<double>(midnight) + now_ / 1000,
                     static_cast<double>(kSecondsPerDay));
}

platform::DateTime VirtualLoop::Now() {
    CountCall();
    return {start.seconds + static_cast<int64_t>(now_ / 1000)};
}

double VirtualLoop::Rnd() {
    // The upper 53 bits fill a double's mantissa: never 1.
    return static_cast<double>(random_() >> 11) / 9007199254740992.0;
}

void VirtualLoop::SetTimer(const void* key, int milliseconds, std::function<void()> tick) {
    const int interval = std::max(1, milliseconds);
    timers_[key] = {now_ + interval, interval, ++serial_, false, std::move(tick)};
}

void VirtualLoop::RunUntil(const std::function<bool()>& done) {
    while (!done()) {
        if (actions_ && !NextAction()) {
            // Whoever waits here waits for a person who has left.
            actions_->End();
            throw platform::ProgramEnd{};
        }
        if (RunOne(now_, true)) {
            continue;
        }
        const std::optional<double> next = NextDue();
        if (!next) {
            throw platform::ProgramEnd{};
        }
        MoveTo(*next);
    }
}

void VirtualLoop::Run(double milliseconds) {
    const double end = now_ + milliseconds;
    for (auto next = NextDue(); next && *next <= end; next = NextDue()) {
        MoveTo(*next);
        RunOne(now_, true);
    }
    MoveTo(end);
}

/// Runs the first of what is due at `until`. False when there is nothing to run.
bool VirtualLoop::RunOne(double until, bool waiting) {
    const auto timer = EarliestTimer();
    const bool timerDue = timer != timers_.end() && timer->second.due <= until;
    const bool held = !waiting && !runningActions_.empty() && runningActions_.back() == now_ &&
                      !(actions_ && actions_->NextComesDuring());
    const std::optional<double> action = held ? std::nullopt : NextAction();
    if (action && *action <= until && (!timerDue || *action < timer->second.due)) {
        RunAction();
        return true;
    }
    if (timerDue) {
        RunTimer(timer);
    }
    return timerDue;
}

void VirtualLoop::RunTimer(Timers::iterator timer) {
    Running& running = timer->second;
    running.due = now_ + running.interval;
    running.ticking = true;
    // The handler may cancel or set anew its own timer: keep what is needed afterwards.
    struct Ticked {
        Timers& timers;
        const void* key;
        int64_t serial;
        ~Ticked() {
            const auto found = timers.find(key);
            if (found != timers.end() && found->second.serial == serial) {
                found->second.ticking = false;
            }
        }
    } ticked{timers_, timer->first, running.serial};
    const auto tick = running.tick;
    tick();
}

void VirtualLoop::RunAction() {
    anyActionRan_ = true;
    const Pushed running(runningActions_, now_);
    actions_->RunNext();
}

VirtualLoop::Timers::iterator VirtualLoop::EarliestTimer() {
    auto earliest = timers_.end();
    for (auto it = timers_.begin(); it != timers_.end(); ++it) {
        const Running& one = it->second;
        if (one.ticking) {
            continue;
        }
        if (earliest == timers_.end() || one.due < earliest->second.due ||
            (one.due == earliest->second.due && one.serial < earliest->second.serial)) {
            earliest = it;
        }
    }
    return earliest;
}

std::optional<double> VirtualLoop::NextAction() const {
    return actions_ ? actions_->NextDue() : std::nullopt;
}

/// When something runs next, of all that can run; nullopt where nothing is left.
std::optional<double> VirtualLoop::NextDue() {
    const std::optional<double> action = NextAction();
    const auto timer = EarliestTimer();
    if (timer == timers_.end()) {
        return action;
    }
    return action ? std::min(*action, timer->second.due) : timer->second.due;
}

void VirtualLoop::EndAfterLastAction() {
    if (!actions_ || NextAction()) {
        return;
    }
    if (runningActions_.empty() || now_ - runningActions_.back() > kLongestLastAction) {
        actions_->End();
    }
}

void VirtualLoop::MoveTo(double milliseconds) {
    if (milliseconds > now_) {
        now_ = milliseconds;
        callsWithoutTime_ = 0;
    }
}

void VirtualLoop::CountCall() {
    if (++callsWithoutTime_ >= kCallsPerMillisecond) {
        MoveTo(now_ + 1);
    }
}

}  // namespace virtual_adapter

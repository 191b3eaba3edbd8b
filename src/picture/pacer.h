// Keeps an effect to its time.
#pragma once

#include <functional>

#include "platform/event_loop.h"

namespace picture {

/// Longest time between two pumps, in ms: what is drawn meanwhile is shown at once.
constexpr double kFrameMs = 16;

/// A course of pauses with a deadline. What is due is not waited for: after a delay of whatever
/// cause the course catches up. Otherwise the events are pumped, which shows what was drawn, and
/// the clock is slept forward to the next frame.
class Pacer {
public:
    /// The course begins now and is `length` ms long, the sum of the pauses to come. `stopped`
    /// is asked before every pause and after every pump.
    Pacer(platform::EventLoop& loop, double length, std::function<bool()> stopped);

    /// Pauses `milliseconds`; not at all once it is stopped. Pumps at least once a frame while it
    /// waits, and also without waiting where drawing has taken a frame's time.
    void Pause(double milliseconds);

private:
    platform::EventLoop& loop_;
    std::function<bool()> stopped_;
    double due_;  // where the course should be, on the loop's clock
    double end_;
    double frame_;  // when the drawing of the present frame began
};

}  // namespace picture

// Time that passes only where the program waits: a run takes as long as its work, and two runs of
// the same script are the same.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <random>
#include <vector>

#include "platform/event_loop.h"

namespace virtual_adapter {

/// Where a run begins that was not told otherwise.
inline const platform::DateTime kUsualStart = platform::FromCalendar({2026, 1, 1, 12, 0, 0});

/// What a scripted person is going to do, one action after the other.
class Actions {
public:
    virtual ~Actions() = default;
    /// Virtual milliseconds at which the next action is due; nullopt when none is left.
    virtual std::optional<double> NextDue() const = 0;
    /// The next action comes as soon as the handler of the one before it pumps, even at the same
    /// moment.
    virtual bool NextComesDuring() const { return false; }
    /// Takes the next action off the queue, then runs it: handlers inside may pump again.
    virtual void RunNext() = 0;
    /// The last action is done: closes the program, which throws ProgramEnd. Returns only where
    /// the program is closing already.
    virtual void End() = 0;
};

/// Milliseconds count from 0 at program start. Only Sleep and waiting in RunUntil move them, with
/// one exception: a loop that polls Timer(), Now() or PumpEvents() and never sleeps would wait for
/// ever, so every 10000th such call in a row passes 1 ms.
///
/// What is due runs in order of its due time, at a tie timers (in the order they were set) before
/// actions. An action that is due while the handler of the action before it still runs is held
/// back until time has passed or that handler waits in RunUntil: no person acts within 0 ms, and
/// a handler that merely pumps is seen as done at once. Only one that comes "during" is not held.
class VirtualLoop : public platform::EventLoop {
public:
    explicit VirtualLoop(platform::DateTime begin = kUsualStart, uint64_t seed = 1);

    /// The moment of 0 milliseconds.
    platform::DateTime start;

    /// Actions to run from now on; null for none. They outlive the loop's use.
    void Follow(Actions* actions) { actions_ = actions; }

    void PumpEvents() override;
    void Sleep(int milliseconds) override;
    double Timer() override;
    platform::DateTime Now() override;
    double Milliseconds() override { return now_; }
    double Rnd() override;
    void SetTimer(const void* key, int milliseconds, std::function<void()> tick) override;
    void CancelTimer(const void* key) override { timers_.erase(key); }
    /// With nothing due jumps to what is due next. With no action left closes the program.
    void RunUntil(const std::function<bool()>& done) override;

    /// Lets so much time pass, with everything that is due running at its own time. Handlers that
    /// wait inside may take longer.
    void Run(double milliseconds);
    bool TimerRuns(const void* key) const { return timers_.contains(key); }

private:
    struct Running {
        double due = 0;
        int interval = 1;
        int64_t serial = 0;    // order of setting; tells a timer that was set anew
        bool ticking = false;  // its handler runs; as on a desktop it is not entered twice
        std::function<void()> tick;
    };
    using Timers = std::map<const void*, Running>;

    bool RunOne(double until, bool waiting);
    void RunTimer(Timers::iterator timer);
    void RunAction();
    Timers::iterator EarliestTimer();
    std::optional<double> NextAction() const;
    std::optional<double> NextDue();
    void EndAfterLastAction();
    void MoveTo(double milliseconds);
    void CountCall();

    std::mt19937_64 random_;
    double now_ = 0;
    int callsWithoutTime_ = 0;
    int64_t serial_ = 0;
    Timers timers_;
    Actions* actions_ = nullptr;
    bool anyActionRan_ = false;
    std::vector<double> runningActions_;  // moments at which the actions on the stack began
};

}  // namespace virtual_adapter

// A virtual clock with timers: time passes only by Sleep and by waiting for the next thing due.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <stdexcept>
#include <vector>

#include "platform/event_loop.h"

namespace fakes {

class FakeLoop : public platform::EventLoop {
public:
    platform::DateTime start = platform::FromCalendar({2026, 1, 1, 12, 0, 0});
    /// Numbers that Rnd gives first; afterwards a fixed generator goes on.
    std::deque<double> randomNumbers;
    /// Called at the beginning of every pump.
    std::function<void()> onPump;
    /// Pumps without any time passing after which a wait counts as endless.
    int endlessPumps = 1000000;
    int pumps = 0;
    std::vector<int> sleeps;  // every Sleep, in order

    /// Runs `action` once, from inside the first pump at or after that time (ms since start).
    void At(double milliseconds, std::function<void()> action) {
        actions_.emplace(milliseconds, std::move(action));
    }
    void After(double milliseconds, std::function<void()> action) {
        At(now_ + milliseconds, std::move(action));
    }
    /// Lets time pass with everything that is due running at its own time.
    void Run(double milliseconds) {
        const double end = now_ + milliseconds;
        for (double next = NextDue(); next <= end; next = NextDue()) {
            now_ = next > now_ ? next : now_;
            PumpEvents();
        }
        now_ = end > now_ ? end : now_;
    }
    bool TimerRuns(const void* key) const { return timers_.contains(key); }
    int TimerInterval(const void* key) const {
        const auto found = timers_.find(key);
        return found == timers_.end() ? 0 : found->second.interval;
    }

    void PumpEvents() override {
        ++pumps;
        if (++pumpsWithoutTime_ > endlessPumps) {
            throw std::runtime_error("a wait pumps for ever and lets no time pass");
        }
        if (onPump) {
            onPump();
        }
        // What becomes due while this pump runs waits for the next one.
        const double until = now_;
        const int64_t serial = serial_;
        while (RunOne(until, serial)) {
        }
    }
    void Sleep(int milliseconds) override {
        sleeps.push_back(milliseconds);
        now_ += milliseconds;
        if (milliseconds > 0) {
            pumpsWithoutTime_ = 0;
        }
    }
    double Timer() override {
        const double midnight = static_cast<double>(start.seconds % 86400) + now_ / 1000;
        return midnight - 86400 * static_cast<double>(static_cast<int64_t>(midnight / 86400));
    }
    platform::DateTime Now() override {
        return {start.seconds + static_cast<int64_t>(now_ / 1000)};
    }
    double Milliseconds() override { return now_; }
    double Rnd() override {
        if (!randomNumbers.empty()) {
            const double number = randomNumbers.front();
            randomNumbers.pop_front();
            return number;
        }
        generator_ = generator_ * 6364136223846793005u + 1442695040888963407u;
        return static_cast<double>(generator_ >> 11) / 9007199254740992.0;
    }
    void SetTimer(const void* key, int milliseconds, std::function<void()> tick) override {
        const int interval = milliseconds < 1 ? 1 : milliseconds;
        timers_[key] = {now_ + interval, interval, ++serial_, std::move(tick)};
    }
    void CancelTimer(const void* key) override { timers_.erase(key); }
    /// With nothing left to wait for, ends the program: a test that hangs fails at once.
    void RunUntil(const std::function<bool()>& done) override {
        while (!done()) {
            const double next = NextDue();
            if (next == kNever) {
                throw platform::ProgramEnd{};
            }
            now_ = next > now_ ? next : now_;
            pumpsWithoutTime_ = 0;
            PumpEvents();
        }
    }

private:
    static constexpr double kNever = 1e300;
    struct Running {
        double due;
        int interval;
        int64_t serial;
        std::function<void()> tick;
    };

    double NextDue() const {
        double next = actions_.empty() ? kNever : actions_.begin()->first;
        for (const auto& [key, timer] : timers_) {
            next = timer.due < next ? timer.due : next;
        }
        return next;
    }
    /// The earliest item due at `until`, timers before actions; timers set since `serial` wait.
    bool RunOne(double until, int64_t serial) {
        auto earliest = timers_.end();
        for (auto it = timers_.begin(); it != timers_.end(); ++it) {
            if (it->second.due <= until && it->second.serial <= serial &&
                (earliest == timers_.end() || it->second.due < earliest->second.due)) {
                earliest = it;
            }
        }
        const bool action = !actions_.empty() && actions_.begin()->first <= until;
        if (action &&
            (earliest == timers_.end() || actions_.begin()->first < earliest->second.due)) {
            const auto run = std::move(actions_.begin()->second);
            actions_.erase(actions_.begin());
            run();
            return true;
        }
        if (earliest == timers_.end()) {
            return false;
        }
        Running& timer = earliest->second;
        timer.due = now_ + timer.interval;
        timer.serial = ++serial_;
        const auto tick = timer.tick;  // the handler may cancel or restart its own timer
        tick();
        return true;
    }

    double now_ = 0;
    int64_t serial_ = 0;
    int pumpsWithoutTime_ = 0;
    uint64_t generator_ = 1;
    std::map<const void*, Running> timers_;
    std::multimap<double, std::function<void()>> actions_;
};

}  // namespace fakes

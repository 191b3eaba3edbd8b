// The virtual loop with somebody who acts at given times, and a record of the waits.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "adapters/virtual/virtual_loop.h"

namespace fakes {

class TestLoop : public virtual_adapter::VirtualLoop {
public:
    /// Numbers that Rnd gives first.
    std::deque<double> randomNumbers;
    /// Called at the beginning of every pump.
    std::function<void()> onPump;
    int pumps = 0;
    std::vector<int> sleeps;  // every Sleep, in order

    /// Runs `action` once, as a robot's, when that time has come (ms since start).
    void At(double milliseconds, std::function<void()> action) {
        person_.actions.emplace(milliseconds, std::move(action));
        Follow(&person_);
    }
    void After(double milliseconds, std::function<void()> action) {
        At(Milliseconds() + milliseconds, std::move(action));
    }

    void PumpEvents() override {
        ++pumps;
        if (onPump) {
            onPump();
        }
        VirtualLoop::PumpEvents();
    }
    void Sleep(int milliseconds) override {
        sleeps.push_back(milliseconds);
        VirtualLoop::Sleep(milliseconds);
    }
    double Rnd() override {
        if (randomNumbers.empty()) {
            return VirtualLoop::Rnd();
        }
        const double number = randomNumbers.front();
        randomNumbers.pop_front();
        return number;
    }

private:
    /// Is followed while anything is left: the program goes on without.
    struct Person : virtual_adapter::Actions {
        explicit Person(TestLoop& around) : loop(around) {}
        std::optional<double> NextDue() const override {
            return actions.empty() ? std::nullopt : std::optional(actions.begin()->first);
        }
        void RunNext() override {
            const auto action = std::move(actions.begin()->second);
            actions.erase(actions.begin());
            if (actions.empty()) {
                loop.Follow(nullptr);
            }
            action();
        }
        void End() override {}

        TestLoop& loop;
        std::multimap<double, std::function<void()>> actions;
    };

    Person person_{*this};
};

}  // namespace fakes

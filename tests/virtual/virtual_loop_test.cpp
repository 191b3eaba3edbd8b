#include "adapters/virtual/virtual_loop.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

namespace virtual_adapter {
namespace {

const platform::DateTime kNoon = platform::FromCalendar({2026, 1, 1, 12, 0, 0});

/// Actions at given moments; ends the program like a window that is closed.
class Plan : public Actions {
public:
    void At(double due, std::function<void()> action) { queue.push_back({due, action}); }

    std::optional<double> NextDue() const override {
        return queue.empty() ? std::nullopt : std::optional(queue.front().first);
    }
    void RunNext() override {
        const auto action = queue.front().second;
        queue.pop_front();
        action();
    }
    void End() override {
        ++ends;
        throw platform::ProgramEnd{};
    }

    std::deque<std::pair<double, std::function<void()>>> queue;
    int ends = 0;
};

/// Waits until the loop ends the program.
void RunToEnd(VirtualLoop& loop) {
    EXPECT_THROW(loop.RunUntil([] { return false; }), platform::ProgramEnd);
}

TEST(VirtualLoop, TimePassesOnlyBySleep) {
    VirtualLoop loop(kNoon);
    EXPECT_EQ(loop.Milliseconds(), 0);
    EXPECT_EQ(loop.Timer(), 43200);
    loop.PumpEvents();
    loop.Sleep(0);
    loop.Sleep(-5);
    EXPECT_EQ(loop.Milliseconds(), 0);
    loop.Sleep(1250);
    EXPECT_EQ(loop.Milliseconds(), 1250);
    EXPECT_DOUBLE_EQ(loop.Timer(), 43201.25);
    EXPECT_EQ(loop.Now().seconds, kNoon.seconds + 1);
}

TEST(VirtualLoop, TimerFallsBackAtMidnight) {
    VirtualLoop loop(platform::FromCalendar({2026, 12, 31, 23, 59, 59}));
    loop.Sleep(999);
    EXPECT_NEAR(loop.Timer(), 86399.999, 1e-6);
    loop.Sleep(1);
    EXPECT_EQ(loop.Timer(), 0);
    EXPECT_EQ(platform::ToCalendar(loop.Now()).year, 2027);
}

TEST(VirtualLoop, TimerBefore1970CountsFromMidnightToo) {
    VirtualLoop loop(platform::FromCalendar({1960, 2, 29, 1, 0, 0}));
    EXPECT_EQ(loop.Timer(), 3600);
}

TEST(VirtualLoop, SameSeedGivesTheSameNumbersInTheUnitInterval) {
    VirtualLoop one(kNoon, 7), two(kNoon, 7), other(kNoon, 8);
    bool differs = false;
    double sum = 0;
    for (int i = 0; i < 1000; ++i) {
        const double number = one.Rnd();
        EXPECT_GE(number, 0);
        EXPECT_LT(number, 1);
        EXPECT_EQ(number, two.Rnd());
        differs |= number != other.Rnd();
        sum += number;
    }
    EXPECT_TRUE(differs);
    EXPECT_NEAR(sum / 1000, 0.5, 0.05);
}

TEST(VirtualLoop, PollingWithoutSleepPassesTimeAtLast) {
    VirtualLoop loop(kNoon);
    for (int i = 0; i < 9999; ++i) {
        loop.Timer();
    }
    EXPECT_EQ(loop.Milliseconds(), 0);
    loop.Timer();
    EXPECT_EQ(loop.Milliseconds(), 1);
    // Two seconds held by polling the clock, as a title screen does.
    const double until = loop.Timer() + 2;
    while (loop.Timer() < until) {
        loop.PumpEvents();
    }
    EXPECT_NEAR(loop.Milliseconds(), 2001, 1);
}

TEST(VirtualLoop, SleepBeginsTheCountOfPollsAnew) {
    VirtualLoop loop(kNoon);
    for (int i = 0; i < 30000; ++i) {
        loop.PumpEvents();
        if (i % 5000 == 0) {
            loop.Sleep(10);
        }
    }
    EXPECT_EQ(loop.Milliseconds(), 60);
}

TEST(VirtualLoop, TickComesAWholeIntervalLaterAndMissedOnesAreNotMadeUpFor) {
    VirtualLoop loop(kNoon);
    std::vector<double> ticks;
    const int key = 0;
    loop.SetTimer(&key, 100, [&] { ticks.push_back(loop.Milliseconds()); });
    loop.Sleep(99);
    loop.PumpEvents();
    EXPECT_TRUE(ticks.empty());
    loop.Sleep(351);  // 450: three whole intervals missed
    loop.PumpEvents();
    loop.PumpEvents();
    loop.Sleep(99);
    loop.PumpEvents();
    loop.Sleep(1);
    loop.PumpEvents();
    EXPECT_EQ(ticks, (std::vector<double>{450, 550}));
    loop.SetTimer(&key, 100, [&] { ticks.push_back(-loop.Milliseconds()); });  // begins anew
    loop.Sleep(99);
    loop.PumpEvents();
    EXPECT_EQ(ticks.size(), 2u);
    loop.CancelTimer(&key);
    loop.Sleep(1000);
    loop.PumpEvents();
    EXPECT_EQ(ticks.size(), 2u);
}

TEST(VirtualLoop, DueThingsRunInOrderOfTimeAndTimersBeforeActionsAtATie) {
    VirtualLoop loop(kNoon);
    Plan plan;
    loop.Follow(&plan);
    std::string order;
    const int first = 0, second = 0, late = 0;
    loop.SetTimer(&late, 70, [&] {
        order += 'l';
        loop.CancelTimer(&late);
    });
    loop.SetTimer(&second, 50, [&] {
        order += '2';
        loop.CancelTimer(&second);
    });
    loop.SetTimer(&first, 50, [&] {
        order += '1';
        loop.CancelTimer(&first);
    });
    plan.At(10, [&] { order += 'a'; });
    plan.At(50, [&] { order += 'b'; });
    plan.At(50, [&] { order += 'c'; });
    plan.At(60, [&] { order += 'd'; });
    plan.At(500, [&] { order += 'e'; });
    loop.Sleep(100);
    loop.PumpEvents();
    EXPECT_EQ(order, "a21bcdl");
}

TEST(VirtualLoop, TimersTickInsideTheWaitOfAnotherTimersHandlerButNotInTheirOwn) {
    VirtualLoop loop(kNoon);
    std::string order;
    const int slow = 0, quick = 0;
    loop.SetTimer(&slow, 100, [&] {
        order += '(';
        for (int i = 0; i < 25; ++i) {
            loop.Sleep(10);
            loop.PumpEvents();
        }
        order += ')';
    });
    loop.SetTimer(&quick, 60, [&] { order += 'q'; });
    loop.Sleep(100);
    loop.PumpEvents();  // quick's first, then slow from 100 to 350; quick's next at 160, 220, 280,
                        // 340
    EXPECT_EQ(order, "q(qqqq)");
    EXPECT_EQ(loop.Milliseconds(), 350);
}

TEST(VirtualLoop, TimerSetAnewInItsOwnHandlerTicksInsideIt) {
    VirtualLoop loop(kNoon);
    const int key = 0;
    int inner = 0;
    loop.SetTimer(&key, 10, [&] {
        loop.SetTimer(&key, 20, [&] { ++inner; });
        loop.Sleep(20);
        loop.PumpEvents();
    });
    loop.Sleep(10);
    loop.PumpEvents();
    EXPECT_EQ(inner, 1);
}

TEST(VirtualLoop, TickThatThrowsLeavesTheTimerRunning) {
    VirtualLoop loop(kNoon);
    const int key = 0;
    int ticks = 0;
    loop.SetTimer(&key, 10, [&] {
        if (++ticks == 1) {
            throw platform::ProgramEnd{};
        }
    });
    loop.Sleep(10);
    EXPECT_THROW(loop.PumpEvents(), platform::ProgramEnd);
    loop.Sleep(10);
    loop.PumpEvents();
    EXPECT_EQ(ticks, 2);
}

TEST(VirtualLoop, ActionRunsInsideTheWaitOfTheOneBefore) {
    VirtualLoop loop(kNoon);
    Plan plan;
    loop.Follow(&plan);
    std::string order;
    plan.At(0, [&] {
        order += '(';
        loop.PumpEvents();  // nobody acts within 0 ms
        order += '.';
        for (int i = 0; i < 10; ++i) {
            loop.Sleep(10);
            loop.PumpEvents();
        }
        order += ')';
    });
    plan.At(0, [&] { order += 'a' + static_cast<char>(loop.Milliseconds() / 10); });
    plan.At(45, [&] { order += 'A' + static_cast<char>(loop.Milliseconds() / 10); });
    plan.At(200, [&] { order += '!'; });
    RunToEnd(loop);
    EXPECT_EQ(order, "(.bF)!");  // at 10, at 50, after the handler
    EXPECT_EQ(plan.ends, 1);
    EXPECT_EQ(loop.Milliseconds(), 200);
}

TEST(VirtualLoop, ActionReachesAModalWaitAtOnce) {
    VirtualLoop loop(kNoon);
    Plan plan;
    loop.Follow(&plan);
    bool closed = false;
    double left = -1;
    plan.At(5, [&] {
        loop.RunUntil([&] { return closed; });
        left = loop.Milliseconds();
    });
    plan.At(5, [&] { closed = true; });
    plan.At(9, [] {});
    RunToEnd(loop);
    EXPECT_EQ(left, 5);
}

TEST(VirtualLoop, RunUntilAsksAfterEveryHandler) {
    VirtualLoop loop(kNoon);
    Plan plan;
    loop.Follow(&plan);
    int ran = 0;
    for (int i = 0; i < 5; ++i) {
        plan.At(10, [&] { ++ran; });
    }
    loop.RunUntil([&] { return ran == 3; });
    EXPECT_EQ(ran, 3);
    EXPECT_EQ(loop.Milliseconds(), 10);
}

TEST(VirtualLoop, WithNothingToWaitForTheProgramEnds) {
    VirtualLoop loop(kNoon);
    RunToEnd(loop);
    Plan empty;
    loop.Follow(&empty);
    const int key = 0;
    loop.SetTimer(&key, 10, [] {});
    RunToEnd(loop);  // a timer alone keeps no run going: nobody acts any more
    EXPECT_EQ(empty.ends, 1);
}

TEST(VirtualLoop, EndsInsideAWaitOnceTheLastActionIsDone) {
    VirtualLoop loop(kNoon);
    Plan plan;
    loop.Follow(&plan);
    const int key = 0;
    loop.SetTimer(&key, 10, [&] {
        loop.CancelTimer(&key);
        while (true) {  // polls for a click that never comes
            loop.PumpEvents();
            loop.Sleep(20);
        }
    });
    plan.At(1000, [] {});
    RunToEnd(loop);
    EXPECT_EQ(plan.ends, 1);
    EXPECT_NEAR(loop.Milliseconds(), 1000, 20);
}

TEST(VirtualLoop, LastActionMayWaitButNotForEver) {
    VirtualLoop loop(kNoon);
    Plan plan;
    loop.Follow(&plan);
    int minutes = 0;
    plan.At(0, [&] {
        for (; minutes < 50; ++minutes) {
            loop.Sleep(60 * 1000);
            loop.PumpEvents();
        }
        while (true) {
            loop.PumpEvents();
            loop.Sleep(1000);
        }
    });
    RunToEnd(loop);
    EXPECT_EQ(minutes, 50);
    EXPECT_NEAR(loop.Milliseconds(), 3600 * 1000, 2000);
}

TEST(VirtualLoop, NeitherTimersNorActionsStarve) {
    VirtualLoop loop(kNoon);
    Plan plan;
    loop.Follow(&plan);
    const int key = 0;
    int ticks = 0;
    loop.SetTimer(&key, 1, [&] {
        ++ticks;
        loop.Sleep(5);  // longer than its own interval
    });
    bool acted = false;
    plan.At(100, [&] { acted = true; });
    plan.At(200, [] {});
    RunToEnd(loop);
    EXPECT_TRUE(acted);
    EXPECT_NEAR(ticks, 40, 1);
}

}  // namespace
}  // namespace virtual_adapter

// Show effects in time: what stands on the canvas at each yield, stops, lengths, the trace.
#include <gtest/gtest.h>

#include <cmath>

#include "effects_support.h"
#include "model/windows/picture_holder.h"

namespace picture {
namespace {

using picture_tests::Holds;
using picture_tests::Rect;
using picture_tests::RuleAreas;
using picture_tests::Screening;
using platform::Size;

/// When the bands of the effects 0 to 7 are drawn, by the pause `p` of a band: wipes pause after
/// a band; centre and outside before a cycle of four; slits before each, and once more before
/// of a pass of `perPass`. What is off the canvas is not paused for.
std::vector<double> DrawnAt(int number, const std::vector<Rect>& areas, const Rect& canvas,
                            double p, int perPass) {
    const auto seen = [&](size_t i) { return !platform::Intersection(areas[i], canvas).Empty(); };
    std::vector<double> moments;
    double now = 0;
    bool passDue = false;
    for (size_t i = 0; i < areas.size(); ++i) {
        if (number < 4) {
            moments.push_back(now);
            now += seen(i) ? p : 0;
        } else if (number < 6) {
            const bool first = i % 4 == 0;
            now += first && (seen(i) || seen(i + 1) || seen(i + 2) || seen(i + 3)) ? p : 0;
            moments.push_back(now);
        } else {
            passDue = passDue || i % static_cast<size_t>(perPass) == 0;
            now += seen(i) ? p + (passDue ? p : 0) : 0;
            passDue = passDue && !seen(i);
            moments.push_back(now);
        }
    }
    return moments;
}

double PauseAt(int number, int speed) {
    const int turns = number < 2   ? (7 - speed) * 10 * 2
                      : number < 4 ? static_cast<int>(std::lround((7 - speed) * 10 * 2 * 0.7))
                      : number < 6 ? (7 - speed) * 15 * 2
                                   : (7 - speed) * 6 * 2;
    return turns * 0.0025;
}

/// Runs the effect and compares the whole canvas with the rule's at every pump.
void CompareAtEveryYield(int number, int speed, Size screen, Size picture) {
    Screening at(screen, picture);
    at.state.ShowEffect = static_cast<int16_t>(number);
    at.state.ShowEffectSpeed = static_cast<int16_t>(speed);
    const std::vector<Rect> areas = RuleAreas(number, 1, false, picture, 10);
    const int extent = number == 7 ? picture.width : picture.height;
    const int perPass = extent / std::max(2, extent / 10) + 1;
    const double p = PauseAt(number, speed);
    int yields = 0, wrong = 0;
    at.loop.onPump = [&] {
        ++yields;
        const Rect canvas{-at.state.PictureX, -at.state.PictureY, screen.width, screen.height};
        const std::vector<double> moments = DrawnAt(number, areas, canvas, p, perPass);
        size_t drawn = 0;
        while (drawn < areas.size() && moments[drawn] <= at.loop.Milliseconds() + 1e-6) {
            ++drawn;
        }
        const bool right = at.Shows([&](int x, int y) {
            for (size_t i = 0; i < drawn; ++i) {
                if (Holds(areas[i], x, y)) {
                    return true;
                }
            }
            return false;
        });
        wrong += right ? 0 : 1;
    };
    RunShowEffect(at.app);
    EXPECT_GT(yields, 1) << number;
    EXPECT_EQ(wrong, 0) << "effect " << number << " at " << speed << ", " << picture.width << "x"
                        << picture.height << " on " << screen.width << "x" << screen.height;
    at.loop.onPump = nullptr;
    EXPECT_TRUE(at.WholePictureStands());
}

TEST(ShowEffect, EveryIntermediateCanvasIsTheRules) {
    for (int number = 0; number < 8; ++number) {
        for (const int speed : {-30, -300, 0}) {
            CompareAtEveryYield(number, speed, {40, 32}, {33, 20});
        }
        CompareAtEveryYield(number, -30, {40, 32}, {7, 5});    // smaller than the slits
        CompareAtEveryYield(number, -30, {40, 32}, {61, 45});  // larger than the screen
        CompareAtEveryYield(number, -30, {40, 32}, {1, 1});
        CompareAtEveryYield(number, -30, {40, 32}, {60, 1});
    }
}

TEST(ShowEffect, MosaicShowsWhatTheNumbersSayAndThenTheWhole) {
    // 10 by 10 in fives: blocks of 2 by 2, 6 by 6 places of which the last lie outside. A block
    // a pause of 7000 × 1.08^40 / 5^2.1 = 5178 turns, 12.945 ms.
    Screening at({20, 20}, {10, 10});
    at.state.ShowEffect = 8;
    at.state.ShowMosaicCount = 5;
    std::vector<double> drawn;
    for (int i = 0; i < 200; ++i) {
        drawn.push_back(i % 7 / 7.0);
    }
    at.loop.randomNumbers.assign(drawn.begin(), drawn.end());
    int wrong = 0;
    at.loop.onPump = [&] {
        const int blocks = static_cast<int>((at.loop.Milliseconds() + 1e-6) / 12.945);
        const bool right = at.Shows([&](int x, int y) {
            // The closing copy comes with the last block, before the last yield.
            for (int i = 0; i < std::min(blocks, 100); ++i) {
                const int left = 2 * static_cast<int>(drawn[size_t(2 * i)] * 6);
                const int top = 2 * static_cast<int>(drawn[size_t(2 * i + 1)] * 6);
                if (Holds({left, top, 2, 2}, x, y)) {
                    return true;
                }
            }
            return blocks >= 100;
        });
        wrong += right ? 0 : 1;
    };
    RunShowEffect(at.app);
    EXPECT_EQ(wrong, 0);
    EXPECT_TRUE(at.loop.randomNumbers.empty());
    EXPECT_NEAR(at.loop.Milliseconds(), 1294.5, 1);
}

TEST(ShowEffect, NoneBringsThePictureWholeAfterOneYield) {
    for (const int16_t effect : {11, 12, -1, 32767}) {
        Screening at({40, 32}, {33, 20});
        at.state.ShowEffect = effect;
        int yields = 0;
        at.loop.onPump = [&] {
            ++yields;
            EXPECT_TRUE(at.Shows([](int, int) { return false; }));
        };
        RunShowEffect(at.app);
        EXPECT_EQ(yields, 1);
        EXPECT_TRUE(at.WholePictureStands());
        EXPECT_EQ(at.loop.Milliseconds(), 0);
        EXPECT_TRUE(at.trace.Of("effect").empty());
    }
}

TEST(ShowEffect, AnEmptyPictureHarmsNothing) {
    Screening at({40, 32}, {33, 20});
    at.app.windows.form4.Picture1.SetPicture(nullptr);
    CreateEffectContext(at.app);
    for (int16_t effect = 0; effect < 12; ++effect) {
        at.state.ShowEffect = effect;
        RunShowEffect(at.app);
    }
    EXPECT_EQ(at.loop.Milliseconds(), 0);
}

TEST(ShowEffect, LengthsAreNominalAndTraced) {
    for (int number = 0; number < kEffectCount; ++number) {
        for (const int speed : {-30, -100, 0, 6}) {
            Screening at({500, 400}, {400, 300});
            at.state.ShowEffect = static_cast<int16_t>(number);
            at.state.ShowEffectSpeed = static_cast<int16_t>(speed);
            const double nominal =
                PlanEffect(number, {.speed = speed}, false, {400, 300}, {-50, -50, 500, 400}, [] {
                    return 0.0;
                }).Length();
            RunShowEffect(at.app);
            EXPECT_GE(at.loop.Milliseconds(), nominal - 1e-6);
            EXPECT_LT(at.loop.Milliseconds(), nominal + 1.0001) << number << " at " << speed;
            const auto traced = at.trace.Of("effect");
            ASSERT_EQ(traced.size(), 1u);
            EXPECT_EQ(traced[0].String("which"), u"show");
            EXPECT_EQ(traced[0].Number("number"), number);
            EXPECT_EQ(traced[0].Number("ms"), at.loop.Milliseconds());
        }
    }
}

TEST(ShowEffect, YieldsOnceAFrame) {
    Screening at({1920, 1080}, {1920, 1080});
    at.state.ShowEffect = 0;
    RunShowEffect(at.app);
    // 1080 × 1.85 ms in frames of 16 ms, and one yield before the closing copy.
    EXPECT_EQ(at.loop.pumps, 125 + 1);
    for (const int sleep : at.loop.sleeps) {
        EXPECT_LE(sleep, 16);
    }
}

TEST(ShowEffect, ASlowMachineCatchesUp) {
    Screening at({400, 300}, {400, 300});
    at.state.ShowEffect = 0;
    // Painting takes 40 ms a time, longer than a frame.
    at.loop.onPump = [&] { at.loop.Sleep(40); };
    RunShowEffect(at.app);
    EXPECT_LE(at.loop.Milliseconds(), 301 * 1.85 + 2 * 40 + 1);
}

TEST(ShowEffect, AStopAtAnyYieldShowsTheWholePictureAtOnce) {
    for (int number = 0; number < kEffectCount; ++number) {
        for (int stopAt = 1; stopAt <= 4; ++stopAt) {
            Screening at({64, 48}, {61, 43});
            at.state.ShowEffect = static_cast<int16_t>(number);
            at.state.EffectStop = 1;  // of old: the effect begins with it cleared
            double stopped = -1;
            at.loop.onPump = [&] {
                if (at.loop.pumps == stopAt) {
                    at.state.EffectStop = 1;
                    stopped = at.loop.Milliseconds();
                }
            };
            RunShowEffect(at.app);
            EXPECT_EQ(at.loop.Milliseconds(), stopped) << number;
            EXPECT_EQ(at.loop.pumps, stopAt + 1) << number << ": one yield before the copy";
            EXPECT_TRUE(at.WholePictureStands()) << number;
            EXPECT_EQ(at.state.EffectStop, 0);
            EXPECT_EQ(at.trace.Of("effect").at(0).Number("ms"), stopped);
        }
    }
}

TEST(ShowEffect, AWindowClosedAtAnyYieldIsLeftAlone) {
    for (int number = 0; number <= kEffectCount + 2; ++number) {
        for (int closeAt = 1; closeAt <= 3; ++closeAt) {
            Screening at({64, 48}, {61, 43});
            at.state.ShowEffect = static_cast<int16_t>(number);
            bool closed = false;
            at.loop.onPump = [&] {
                if (at.loop.pumps == closeAt) {
                    at.state.FullScreenActive = 0;
                    ReleaseEffectContext(at.app);
                    at.canvas.canvas.Fill(Screening::kGround);
                    closed = true;
                }
            };
            RunShowEffect(at.app);
            if (closed) {
                EXPECT_TRUE(at.Shows([](int, int) { return false; })) << number;
                EXPECT_LE(at.loop.pumps, closeAt + 1);
            }
        }
    }
}

TEST(ShowEffect, GivesWayToAnotherPictureThatCameMeanwhile) {
    Screening at({64, 48}, {61, 43});
    at.state.ShowEffect = 0;
    at.loop.onPump = [&] {
        at.loop.onPump = nullptr;
        at.app.windows.form4.Picture1.SetPicture(
            std::make_shared<platform::Bitmap>(64, 48, 0xFF112233u));
        CreateEffectContext(at.app);
        at.state.ShowEffect = 11;
        RunShowEffect(at.app);
    };
    RunShowEffect(at.app);
    EXPECT_TRUE(at.Matches([](int, int) { return platform::Rgb(0x11, 0x22, 0x33); }));
}

}  // namespace
}  // namespace picture

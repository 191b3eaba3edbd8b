// Erase effects: when they run, what they blacken, how they end.
#include <gtest/gtest.h>

#include "effects_support.h"
#include "model/windows/picture_holder.h"

namespace picture {
namespace {

using picture_tests::Holds;
using picture_tests::Rect;
using picture_tests::RuleAreas;
using picture_tests::Screening;
using platform::Size;

/// A picture that stands on the screen, to be erased by that effect.
struct Erasing : Screening {
    Erasing(int effect, Size screen, Size shown) : Screening(screen, shown) {
        state.ShowEffect = 11;
        RunShowEffect(app);
        loop.pumps = 0;
        state.EraseEffect = static_cast<int16_t>(effect);
        canvas.BackColor = static_cast<int>(kGround);
    }
    bool Clean() const {
        return Shows([](int, int) { return false; });
    }
};

TEST(EraseEffect, BlackensTheRulesRectanglesAlsoBeyondThePicture) {
    for (const Size size : {Size{33, 20}, Size{7, 5}, Size{61, 45}, Size{1, 1}}) {
        for (int number = 0; number < 8; ++number) {
            Erasing at(number, {40, 32}, size);
            // At full speed an effect yields for the first time when all is drawn.
            at.state.EraseEffectSpeed = 7;
            const int step = number == 4 || number == 5 ? 2 : 1;
            const std::vector<Rect> areas = RuleAreas(number, step, true, size, 10);
            bool right = false;
            at.loop.onPump = [&] {
                right = at.Matches([&](int x, int y) {
                    for (const Rect& area : areas) {
                        if (Holds(area, x - at.state.PictureX, y - at.state.PictureY)) {
                            return 0u;
                        }
                    }
                    return at.ShownColor(x, y);
                });
            };
            RunEraseEffect(at.app);
            EXPECT_TRUE(right) << number << ", " << size.width << "x" << size.height;
            at.loop.onPump = nullptr;
            EXPECT_TRUE(at.Clean());
        }
    }
}

TEST(EraseEffect, SlitsGoBackwardsInTime) {
    // Slits of 3 rows in 30: passes over the rows 3, 2, 1, 0 of each, 11 bands and a pause more,
    // 1.11 ms each.
    Erasing at(6, {40, 40}, {8, 30});
    std::vector<Rect> areas = RuleAreas(6, 1, true, {8, 30}, 10);
    int wrong = 0;
    at.loop.onPump = [&] {
        const bool right = at.Matches([&](int x, int y) {
            for (size_t i = 0; i < areas.size(); ++i) {
                const double drawn = static_cast<double>(i + 1 + i / 11 + 1) * 1.11;
                if (drawn <= at.loop.Milliseconds() + 1e-6 &&
                    Holds(areas[i], x - at.state.PictureX, y - at.state.PictureY)) {
                    return 0u;
                }
            }
            return at.ShownColor(x, y);
        });
        wrong += right ? 0 : 1;
    };
    RunEraseEffect(at.app);
    EXPECT_EQ(wrong, 0);
    EXPECT_NEAR(at.loop.Milliseconds(), 48 * 1.11, 1);
}

TEST(EraseEffect, MosaicEndsWithTheWholePictureBlack) {
    Erasing at(8, {40, 32}, {20, 20});
    at.state.EraseMosaicCount = 5;
    at.loop.randomNumbers.assign(200, 0.0);  // always the first block
    bool black = false;
    at.loop.onPump = [&] {
        black = at.Matches([&](int x, int y) {
            return Holds({at.state.PictureX, at.state.PictureY, 20, 20}, x, y) ? 0u
                                                                               : Screening::kGround;
        });
    };
    RunEraseEffect(at.app);
    EXPECT_TRUE(black) << "at the last yield";
    at.loop.onPump = nullptr;
    EXPECT_TRUE(at.Clean());
}

TEST(EraseEffect, HasItsOwnSettings) {
    Erasing at(6, {300, 300}, {100, 100});
    at.state.ShowEffectSpeed = 7;
    at.state.ShowSlitCount = 100;
    at.state.EraseEffectSpeed = -3;
    at.state.EraseSlitCount = 20;
    RunEraseEffect(at.app);
    // Slits of 5: six passes of 21 bands and a pause, 10 × 6 × 2 turns each.
    EXPECT_NEAR(at.loop.Milliseconds(), 6 * 22 * 0.3, 1);
    const auto traced = at.trace.Of("effect");
    ASSERT_EQ(traced.size(), 1u);
    EXPECT_EQ(traced[0].String("which"), u"erase");
    EXPECT_EQ(traced[0].Number("number"), 6);
    EXPECT_EQ(traced[0].Number("ms"), at.loop.Milliseconds());
    EXPECT_EQ(at.state.CurrentEraseEffect, 6);
}

TEST(EraseEffect, LeftAndRightTakeTheirShareOfThePause) {
    Erasing at(2, {300, 300}, {100, 50});
    RunEraseEffect(at.app);
    EXPECT_NEAR(at.loop.Milliseconds(), 101 * 1.295, 1);
}

TEST(EraseEffect, AStopClearsAtOnce) {
    for (int number = 0; number < kEffectCount; ++number) {
        Erasing at(number, {64, 48}, {61, 43});
        at.state.EffectStop = 1;
        double stopped = -1;
        at.loop.onPump = [&] {
            if (at.loop.pumps == 2) {
                at.state.EffectStop = 1;
                stopped = at.loop.Milliseconds();
            }
        };
        RunEraseEffect(at.app);
        EXPECT_EQ(at.loop.Milliseconds(), stopped);
        EXPECT_GT(stopped, 0) << number << ": an old stop counts for nothing";
        EXPECT_TRUE(at.Clean()) << number;
        EXPECT_EQ(at.state.EffectStop, 0);
        EXPECT_EQ(at.state.EffectDcValid, 0);
    }
}

TEST(EraseEffect, SkippedItOnlyGivesUpTheContext) {
    const std::function<void(model::ShowState&)> reasons[] = {
        [](model::ShowState& state) { state.FullScreenActive = 0; },
        [](model::ShowState& state) { state.SlideIndex = 1, state.EraseSkipOnce = 1; },
        [](model::ShowState& state) { state.EraseEffect = 12; },
        [](model::ShowState& state) { state.LastWasVideo = 1; },
        [](model::ShowState& state) { state.PreviousPictureOnScreen = 0; },
    };
    // Where nothing stands, slide 2 counts all the same.
    const int skipsOnceAfter[] = {1, 1, 1, 1, 0};
    size_t row = 0;
    for (const auto& reason : reasons) {
        Erasing at(0, {64, 48}, {61, 43});
        at.state.EraseSkipOnce = 1;
        at.state.EffectStop = 1;
        reason(at.state);
        RunEraseEffect(at.app);
        EXPECT_EQ(at.loop.Milliseconds(), 0);
        EXPECT_EQ(at.loop.pumps, 0);
        EXPECT_TRUE(at.WholePictureStands());
        EXPECT_EQ(at.state.EffectDcValid, 0);
        EXPECT_EQ(at.state.EffectDc, nullptr);
        EXPECT_EQ(at.state.EraseSkipOnce, skipsOnceAfter[row++]);
        EXPECT_EQ(at.state.EffectStop, 0);
        EXPECT_TRUE(at.trace.Of("effect").empty());
    }
}

TEST(EraseEffect, TheSkipCountsForSlideOneOnly) {
    Erasing second(0, {64, 48}, {61, 43});
    second.state.EraseSkipOnce = 1;
    RunEraseEffect(second.app);
    EXPECT_EQ(second.trace.Of("effect").size(), 1u);
    EXPECT_EQ(second.state.EraseSkipOnce, 0);

    Erasing again(0, {64, 48}, {61, 43});
    again.state.SlideIndex = 1;
    RunEraseEffect(again.app);
    EXPECT_EQ(again.trace.Of("effect").size(), 1u) << "slide 1 of the next pass";
}

TEST(EraseEffect, LeavesNothingToBeErased) {
    Erasing at(0, {64, 48}, {61, 43});
    EXPECT_EQ(at.state.PreviousPictureOnScreen, 1);
    RunEraseEffect(at.app);
    EXPECT_EQ(at.state.PreviousPictureOnScreen, 0);
    RunEraseEffect(at.app);
    EXPECT_EQ(at.trace.Of("effect").size(), 1u);
}

TEST(EraseEffect, HasThePlaceOfThePictureThatStandsWhateverTheHolderHolds) {
    Erasing at(0, {64, 48}, {20, 10});
    at.app.windows.form4.Picture1.SetPicture(nullptr);
    ReleaseEffectContext(at.app);
    RunEraseEffect(at.app);
    EXPECT_NEAR(at.loop.Milliseconds(), 11 * 1.85, 1);
    EXPECT_TRUE(at.Clean());
}

TEST(EraseEffect, AValueBeyondTheEffectsOnlyClears) {
    Erasing at(11, {64, 48}, {61, 43});
    at.state.CurrentShowEffect = 11;  // shown without an effect, erased as shown
    RunEraseEffect(at.app);
    EXPECT_TRUE(at.Clean());
    EXPECT_EQ(at.loop.Milliseconds(), 0);
    EXPECT_TRUE(at.trace.Of("effect").empty());
}

TEST(EraseEffect, AWindowClosedMeanwhileIsLeftAlone) {
    for (int number = 0; number < kEffectCount; ++number) {
        Erasing at(number, {64, 48}, {61, 43});
        at.loop.onPump = [&] {
            at.loop.onPump = nullptr;
            at.state.FullScreenActive = 0;
            ReleaseEffectContext(at.app);
            at.canvas.canvas.Fill(0x123456);
        };
        RunEraseEffect(at.app);
        EXPECT_TRUE(at.Matches([](int, int) { return 0x123456u; })) << number;
    }
}

}  // namespace
}  // namespace picture

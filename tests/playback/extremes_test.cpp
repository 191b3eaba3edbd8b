// Pictures of extreme shapes and settings that no dialog offers, in the window, in full screen and
// under each overlap: the show goes on and ends where it should.
#include <gtest/gtest.h>

#include "model/windows/picture_holder.h"
#include "model/windows/slide_list.h"
#include "show_support.h"

namespace playback_tests {
namespace {

constexpr platform::Size kShapes[] = {{40000, 10}, {10, 40000}, {1, 1}, {1, 3000}, {3000, 1}};

Show& Fill(Show& show) {
    for (const platform::Size& shape : kShapes) {
        const Text path = Show::PathOf(show.form3.List1.ListCount() + 1);
        show.PutPicture(path, shape.width, shape.height);
        show.AddSlide(path);
    }
    show.state.TextMacroFlag = 0;
    show.state.TextOriginScreen = 1;
    return show;
}

TEST(Extremes, EveryShapeInTheWindow) {
    for (const int16_t sizeAdjust : {0, 1, 2}) {
        Show show(0);
        Fill(show).state.SizeAdjust = sizeAdjust;
        for (int slide = 1; slide <= 5; ++slide) {
            show.Step(slide);
        }
        EXPECT_EQ(show.Shown(), (Numbers{1, 2, 3, 4, 5})) << sizeAdjust;
        EXPECT_TRUE(show.dialogs.messages.empty());
    }
}

TEST(Extremes, EveryShapeUnderEachOverlapAndEffect) {
    for (const int16_t overlay : {-1, 0, 1, 2, 3, 4, 5, 32767}) {
        for (const int16_t sizeAdjust : {0, 2}) {
            Show show(0);
            Fill(show).state.SizeAdjust = sizeAdjust;
            show.GoFullScreen();
            show.state.OverlayMode = overlay;
            show.state.ShowEffect = 10;
            show.state.EraseEffect = 11;
            show.state.ShowEffectSpeed = 6;
            show.state.EraseEffectSpeed = 6;
            for (int slide = 1; slide <= 10; ++slide) {
                show.Step((slide - 1) % 5 + 1);
                EXPECT_EQ(show.state.StepBusy, 0);
            }
            EXPECT_EQ(show.Shown(), (Numbers{1, 2, 3, 4, 5, 1, 2, 3, 4, 5})) << overlay;
        }
    }
}

TEST(Extremes, AThinLineIsFittedAcrossTheScreen) {
    Show show(0);
    Fill(show).state.ShowEffect = 11;
    show.GoFullScreen();
    show.Step(1);
    // 10 × 1920 / 40000 would round to no row at all.
    EXPECT_EQ(show.windows.form4.Picture1.ScaleWidth(), 1920);
    EXPECT_EQ(show.windows.form4.Picture1.ScaleHeight(), 1);
    EXPECT_EQ(show.state.PictureY, 540);  // 539.5, the even one
    EXPECT_EQ(show.screen.P2.canvas.Point(0, 540), 0x808080u);
    EXPECT_EQ(show.screen.P2.canvas.Point(0, 539), 0u);
}

TEST(Extremes, UnfittedItRunsOverBothSides) {
    Show show(0);
    Fill(show).state.ShowEffect = 11;
    show.state.SizeAdjust = 2;
    show.state.OverlayMode = 1;
    show.GoFullScreen();
    show.Step(1);
    EXPECT_EQ(show.state.PictureX, -19040);  // (1920 - 40000) / 2
    EXPECT_EQ(show.state.PictureY, 535);
    EXPECT_EQ(show.screen.P2.canvas.Point(1919, 544), 0x808080u);
    EXPECT_EQ(show.screen.P2.canvas.Point(960, 534), 0xFFFFFFu) << "the frame above it";
    EXPECT_EQ(show.screen.P2.canvas.Point(960, 545), 0u) << "and below";
}

TEST(Extremes, SettingsThatNoDialogOffersDrawThePictureInTheEnd) {
    const int16_t numbers[] = {-32768, -1000, -1, 0, 1, 11, 101, 32767};
    for (const int16_t number : numbers) {
        for (int16_t effect = 0; effect <= 8; ++effect) {
            Show show(2);
            show.GoFullScreen();
            model::ShowState& state = show.state;
            state.ShowEffect = effect;
            state.EraseEffect = effect;
            state.ShowEffectSpeed = std::max<int16_t>(number, 0);  // slower ones have their own
            state.EraseEffectSpeed = std::max<int16_t>(number, 0);
            state.ShowSlitCount = number;
            state.EraseSlitCount = number;
            state.ShowMosaicCount = number;
            state.EraseMosaicCount = number;
            state.MosaicDelayUnit = std::max<int16_t>(number, 0);
            state.OverlaySize = number;
            state.PicturePosition = number;
            state.OverlayBackColor = number;
            show.Step(1);
            show.Step(2);
            EXPECT_EQ(show.Shown(), (Numbers{1, 2})) << effect << " with " << number;
            EXPECT_EQ(show.screen.P2.canvas.Point(state.PictureX + 5, state.PictureY + 5),
                      0x808080u);
        }
    }
}

TEST(Extremes, AStopEndsEvenTheSlowestEffect) {
    for (int16_t effect = 0; effect <= 8; ++effect) {
        Show show(1);
        show.GoFullScreen();
        show.state.ShowEffect = effect;
        show.state.ShowEffectSpeed = -32768;
        show.loop.After(100, [&] { show.screen.P2.Click(); });
        show.Step(1);
        EXPECT_LE(show.loop.Milliseconds(), 120) << effect;
        EXPECT_EQ(show.screen.P2.canvas.Point(960, 540), 0x808080u);
    }
}

}  // namespace
}  // namespace playback_tests

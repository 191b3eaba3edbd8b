// The ground under a collage, and what stays on it.
#include <gtest/gtest.h>

#include "model/picture_controls.h"
#include "overlay_support.h"

namespace picture {
namespace {

TEST(OverlayGround, ColourTable) {
    const platform::Color colors[]{0x808080, 0xC0C0C0, 0x000000, 0xC0C0FF, 0xC0E0FF,
                                   0xC0FFFF, 0xC0FFC0, 0xFFFFC0, 0xFFC0C0, 0xFFC0FF};
    model::ShowState state;
    for (int16_t i = 0; i < 10; ++i) {
        state.OverlayBackColor = i;
        EXPECT_EQ(OverlayBackground(state), colors[i]) << i;
    }
    for (const int16_t none : {-1, 10, 32767, -32768}) {
        state.OverlayBackColor = none;
        EXPECT_EQ(OverlayBackground(state), 0u) << none;
    }
}

TEST(OverlayGround, AMacrosTextGoesBeforeTheTable) {
    model::ShowState state;
    state.OverlayBackColor = 3;
    state.OverlayBackText = u"12AbF0";  // red 12, green AB, blue F0
    EXPECT_EQ(OverlayBackground(state), 0xF0AB12u);
    state.OverlayBackText = u"000000";
    EXPECT_EQ(OverlayBackground(state), 0u);
    state.OverlayBackText.clear();
    EXPECT_EQ(OverlayBackground(state), 0xC0C0FFu);
}

TEST(OverlayGround, LiesOnAllThreeLayers) {
    Collage collage(1);
    collage.state.OverlayBackText = u"102030";
    ResetCanvasGround(collage.app);
    for (model::PictureBox* layer : collage.Layers()) {
        EXPECT_EQ(layer->BackColor(), 0x302010);
        EXPECT_EQ(collage.At(*layer, 99, 59), 0xFF102030u);
    }
}

TEST(OverlayGround, WithoutOverlapAllThreeLayersAreBlackAndEmpty) {
    Collage collage(1);
    collage.Add(20, 20, "FF0000");
    collage.Step(1);
    EXPECT_EQ(collage.state.PreviousPictureOnScreen, 1);
    collage.state.OverlayMode = 0;
    ResetCanvasGround(collage.app);
    for (model::PictureBox* layer : collage.Layers()) {
        EXPECT_EQ(layer->BackColor(), 0);
        EXPECT_EQ(collage.At(*layer, 0, 0), kBlack);
        EXPECT_EQ(collage.At(*layer, 50, 30), kBlack);
    }
    EXPECT_EQ(collage.state.PreviousPictureOnScreen, 0);
}

TEST(OverlayGround, ADocumentsSettingsLayItAnew) {
    Collage plain(1);
    plain.Add(20, 20, "FF0000");
    plain.Step(1);
    plain.state.OverlayMode = 0;
    plain.screen.GroundChanged();
    for (model::PictureBox* layer : plain.Layers()) {
        EXPECT_EQ(layer->BackColor(), 0);
        EXPECT_EQ(plain.At(*layer, 50, 30), kBlack);
    }
    EXPECT_EQ(plain.state.PreviousPictureOnScreen, 0) << "nothing is left to be erased";

    Collage overlaid(1);
    overlaid.state.PreviousPictureOnScreen = 1;
    overlaid.state.OverlayBackText = u"102030";
    overlaid.screen.Width = 150;
    overlaid.screen.Height = 75;
    overlaid.screen.P2.Left = 15;
    overlaid.screen.GroundChanged();
    EXPECT_EQ(overlaid.screen.P2.Left, 0);
    EXPECT_EQ(overlaid.screen.P2.canvas.Width(), 10);
    EXPECT_EQ(overlaid.screen.P2.canvas.Height(), 5);
    EXPECT_EQ(overlaid.OnScreen(9, 4), 0xFF102030u);
    EXPECT_EQ(overlaid.At(overlaid.screen.P3, 9, 4), 0xFF102030u);
    EXPECT_EQ(overlaid.state.PreviousPictureOnScreen, 0);
}

TEST(OverlayGround, NothingIsErasedWhateverTheEraseEffect) {
    for (int16_t effect = 0; effect <= 12; ++effect) {
        Collage collage(1);
        collage.state.EraseEffect = effect;
        collage.Add(10, 10, "FF0000");
        collage.Add(20, 20, "00FF00");
        collage.StepAt(1, 0, 0);
        collage.StepAt(2, 1, 1);
        EXPECT_EQ(collage.OnScreen(0, 0), 0xFFFF0000u) << effect;
        EXPECT_EQ(collage.OnScreen(9, 9), 0xFFFF0000u);
        EXPECT_EQ(collage.OnScreen(80, 40), 0xFF00FF00u);
        EXPECT_EQ(collage.OnScreen(99, 59), 0xFF00FF00u);
        EXPECT_EQ(collage.OnScreen(50, 20), kGround);
    }
}

TEST(OverlayGround, PicturesLieOverEachOtherInTheirOrder) {
    Collage collage(1);
    collage.Add(40, 40, "FF0000");
    collage.Add(20, 20, "00FF00");
    collage.Step(1);  // at (30, 10)
    collage.Step(2);  // at (40, 20)
    EXPECT_EQ(collage.OnScreen(30, 10), 0xFFFF0000u);
    EXPECT_EQ(collage.OnScreen(40, 20), 0xFF00FF00u);
    EXPECT_EQ(collage.OnScreen(59, 39), 0xFF00FF00u);
    EXPECT_EQ(collage.OnScreen(38, 25), kWhite) << "the frame lies on the picture below";
    EXPECT_EQ(collage.OnScreen(37, 25), 0xFFFF0000u);
}

TEST(OverlayGround, ThePictureIsAsLargeAsItsShareOfTheScreen) {
    Collage collage(1);
    collage.state.SizeAdjust = 0;
    collage.state.OverlaySize = 3;  // 40 %: 40 × 24 pixels
    collage.Add(200, 100, "FF0000");
    collage.Step(1);
    EXPECT_EQ(collage.holder.ScaleWidth(), 40);
    EXPECT_EQ(collage.holder.ScaleHeight(), 20);
    EXPECT_EQ(collage.OnScreen(30, 20), 0xFFFF0000u);
    EXPECT_EQ(collage.OnScreen(69, 39), 0xFFFF0000u);
    EXPECT_EQ(collage.OnScreen(27, 20), kGround);
}

}  // namespace
}  // namespace picture

// The previous picture of a collage is muted before the next one comes.
#include <gtest/gtest.h>

#include "model/picture_controls.h"
#include "model/windows/picture_holder.h"
#include "overlay_support.h"

namespace picture {
namespace {

using Log = std::vector<std::string>;

constexpr platform::Pixel kColour = 0xFF306090u, kGray = 0xFF606060u, kText = 0xFF0000FFu;

/// A first picture of 20 × 10 pixels at the top left stands, with a text on it.
struct Muting : Collage {
    explicit Muting(int16_t mode) : Collage(mode) {
        Add(20, 10, "306090");  // mean 60
        Add(20, 10, "00FF00");
        StepAt(1, 0, 0);
        screen.P2.canvas.FillRect({5, 5, 4, 4}, platform::ToColor(kText));
        Filters();
    }
    void Next() { StepAt(2, 1, 1); }
};

TEST(Muting, TheFirstPictureHasNoneBeforeIt) {
    for (const int16_t mode : {1, 2, 3, 4}) {
        Collage collage(mode);
        collage.Add(20, 10, "306090");
        collage.loop.randomNumbers = {0.2};
        collage.Step(1);
        EXPECT_EQ(collage.Filters(), Log{}) << mode;
        EXPECT_EQ(collage.loop.randomNumbers.size(), 1u) << "no number is drawn";
    }
}

TEST(Muting, NeedsAPictureThatStandsOnTheScreen) {
    for (const bool contextMissing : {false, true}) {
        Muting muting(2);
        (contextMissing ? muting.state.EffectDcValid : muting.state.PreviousPictureOnScreen) = 0;
        muting.Next();
        EXPECT_EQ(muting.Filters(), Log{});
        EXPECT_EQ(muting.OnScreen(0, 0), kColour);
    }
}

TEST(Muting, ColourModeAndNumbersBeyondTheMenusLeaveThePicture) {
    for (const int16_t mode : {1, 5, 9, 32767}) {
        Muting muting(mode);
        muting.Next();
        EXPECT_EQ(muting.Filters(), Log{}) << mode;
        EXPECT_EQ(muting.OnScreen(0, 0), kColour);
        EXPECT_EQ(muting.OnScreen(99, 59), 0xFF00FF00u);
    }
}

TEST(Muting, GreyIsPaintedInPlaceOnAllLayers) {
    Muting muting(2);
    for (model::PictureBox* layer : muting.Layers()) {
        layer->canvas.FillRect({40, 40, 2, 2}, 0x123456);
    }
    muting.state.TextMacroFlag = 1;  // P4 keeps what was painted: no copy of P2
    muting.Next();
    EXPECT_EQ(muting.Filters(), (Log{"gray", "colors 24"}));
    for (model::PictureBox* layer : muting.Layers()) {
        EXPECT_EQ(muting.At(*layer, 0, 0), kGray) << layer->Name();
        EXPECT_EQ(muting.At(*layer, 19, 9), kGray);
        EXPECT_EQ(muting.At(*layer, 6, 6), kGray) << "the text on it is gone";
        EXPECT_EQ(muting.At(*layer, 40, 40), 0xFF563412u) << "around it nothing changes";
    }
    EXPECT_EQ(muting.At(muting.screen.P3, 20, 0), kGround);
    EXPECT_EQ(muting.OnScreen(20, 0), kBlack) << "its frame stays";
    EXPECT_EQ(muting.OnScreen(0, 10), kBlack);
    EXPECT_EQ(muting.OnScreen(99, 59), 0xFF00FF00u) << "the new picture is not muted";
}

TEST(Muting, TwoLevelsComeBackTo24BitsBeforeTheRedraw) {
    Muting muting(3);
    muting.Next();
    EXPECT_EQ(muting.Filters(), (Log{"colors 1", "colors 24"}));
    EXPECT_EQ(muting.OnScreen(0, 0), kBlack);  // mean 60 hexadecimal is below the middle
    EXPECT_EQ(muting.windows.form4.Lead1.imaging->BitsPerPixel(), 24);
}

TEST(Muting, ThePathOfThePictureBeforeIsHarmless) {
    Muting muting(3);
    muting.StepAt(1, 1, 0);
    muting.StepAt(1, 1, 1);
    EXPECT_EQ(muting.Filters(), (Log{"colors 1", "colors 24", "colors 1", "colors 24"}));
    EXPECT_EQ(muting.OnScreen(0, 0), kBlack);
    EXPECT_EQ(muting.OnScreen(99, 0), kBlack);
    EXPECT_EQ(muting.OnScreen(99, 59), kColour);
    EXPECT_EQ(muting.windows.form4.Lead1.imaging->BitsPerPixel(), 24);
}

TEST(Muting, TheAutomaticModeGoesByOneNumber) {
    struct Draw {
        double number;  // times 5.9, cut
        Log filters;
    };
    const Log twoLevels{"colors 1", "colors 24"}, mirror{"reverse", "colors 24"},
        mosaic{"mosaic 12", "colors 24"};
    for (const Draw& draw :
         {Draw{0.0, {}}, Draw{0.169, {}}, Draw{0.170, twoLevels}, Draw{0.338, twoLevels},
          Draw{0.339, mirror}, Draw{0.508, mirror}, Draw{0.509, {}}, Draw{0.677, {}},
          Draw{0.678, mosaic}, Draw{0.847, mosaic}, Draw{0.848, mirror}, Draw{0.9999, mirror}}) {
        Muting muting(4);
        muting.loop.randomNumbers = {draw.number};
        muting.Next();
        EXPECT_EQ(muting.Filters(), draw.filters) << draw.number;
        EXPECT_EQ(muting.OnScreen(6, 6) == kText, draw.filters.empty()) << "no redraw";
        EXPECT_EQ(muting.state.PictureX, 80) << "one number, before those of the place";
    }
}

TEST(Muting, InTheWindowThereIsNone) {
    Collage collage(2);
    collage.state.FullScreenActive = 0;
    collage.Add(20, 10, "306090");
    collage.Step(1);
    collage.state.PreviousPictureOnScreen = 1;  // as START leaves it
    collage.Step(1);
    EXPECT_EQ(collage.Filters().size(), 2u) << "the fit to the preview, twice";
    for (const std::string& line : collage.imaging.log) {
        EXPECT_NE(line, "gray");
    }
}

TEST(Muting, AWindowClosedInItsPumpLeavesNoContext) {
    Muting muting(2);
    muting.loop.onPump = [&] {
        muting.loop.onPump = nullptr;
        muting.screen.Unload();
    };
    ReprocessPreviousPicture(muting.app);
    EXPECT_EQ(muting.state.FullScreenActive, 0);
    EXPECT_EQ(muting.state.EffectDcValid, 0);
    EXPECT_EQ(muting.state.EffectDc, nullptr);
    EXPECT_NE(muting.OnScreen(0, 0), kGray);
}

TEST(Muting, AWindowClosedInItsPumpLeavesTheNextPictureInThePreview) {
    Muting muting(2);
    muting.loop.onPump = [&] {
        muting.loop.onPump = nullptr;
        muting.screen.Unload();
    };
    muting.Next();
    EXPECT_EQ(muting.state.EffectDcValid, 0);
    EXPECT_NE(muting.OnScreen(99, 59), 0xFF00FF00u);
}

TEST(Muting, APictureThatFailsIsFollowedByOneWithNothingToMute) {
    Muting muting(2);
    muting.state.ListErrorDelete = 1;
    muting.Break(2);
    muting.Next();
    EXPECT_EQ(muting.Filters(), (Log{"gray", "colors 24"}));
    EXPECT_EQ(muting.OnScreen(0, 0), kGray);
    muting.Add(20, 10, "00FF00");
    muting.PutPicture(muting.state.SlideList(2), 20, 10);
    muting.loop.randomNumbers.clear();
    muting.StepAt(2, 1, 1);
    EXPECT_EQ(muting.OnScreen(0, 0), kGray) << "what stands stays";
    EXPECT_EQ(muting.OnScreen(99, 59), kGround);  // the new picture is grey, as PutPicture makes it
    EXPECT_EQ(muting.state.EffectDcValid, 1);
}

}  // namespace
}  // namespace picture

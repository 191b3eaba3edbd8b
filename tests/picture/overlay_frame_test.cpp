// The bevel around a picture of a collage.
#include <gtest/gtest.h>

#include "model/picture_controls.h"
#include "overlay_support.h"

namespace picture {
namespace {

using Rows = std::vector<std::string>;

/// A layer as text: ground '.', picture 'P', white 'W', black 'B', anything else '?'.
Rows Drawn(const model::PictureBox& layer) {
    const platform::Bitmap& pixels = layer.canvas.Pixels();
    Rows rows;
    for (int y = 0; y < pixels.height; ++y) {
        std::string row;
        for (int x = 0; x < pixels.width; ++x) {
            const platform::Pixel p = pixels.Row(y)[x];
            row += p == kGround ? '.' : p == kWhite ? 'W' : p == kBlack ? 'B' : 'P';
            if (row.back() == 'P' && p != 0xFFFF0000u) {
                row.back() = '?';
            }
        }
        rows.push_back(row);
    }
    return rows;
}

/// A red picture of 3 × 2 pixels on a screen of 9 × 8.
struct Framed : Collage {
    explicit Framed(int16_t overlayMode = 1) : Collage(overlayMode, {9, 8}) { Add(3, 2, "FF0000"); }
};

TEST(OverlapFrame, WhiteAtTheTopAndLeftBlackAtTheRightAndBottom) {
    const Rows expected{".........",  //
                        ".WWWWWWB.",  //
                        ".WWWWWBB.",  //
                        ".WWPPPBB.",  //
                        ".WWPPPBB.",  //
                        ".WBBBBBB.",  //
                        ".BBBBBBB.",  //
                        "........."};
    for (const int16_t mode : {1, 2, 3, 4}) {
        Framed framed(mode);
        framed.Step(1);
        EXPECT_EQ(Drawn(framed.screen.P2), expected) << mode;
        EXPECT_EQ(Drawn(framed.screen.P4), expected) << "in the clean copy as well";
    }
}

TEST(OverlapFrame, AtTheEdgesItsLinesFallOffTheCanvas) {
    Framed topLeft;
    topLeft.StepAt(1, 0, 0);
    EXPECT_EQ(topLeft.state.PictureX, 0);
    EXPECT_EQ(Drawn(topLeft.screen.P2), (Rows{"PPPBB....", "PPPBB....", "BBBBB....", "BBBBB....",
                                              ".........", ".........", ".........", "........."}));
    Framed bottomRight;
    bottomRight.StepAt(1, 1, 1);
    EXPECT_EQ(Drawn(bottomRight.screen.P2),
              (Rows{".........", ".........", ".........", ".........", "....WWWWW", "....WWWWW",
                    "....WWPPP", "....WWPPP"}));
}

TEST(OverlapFrame, ALargerPictureHasItOutsideTheScreen) {
    Framed framed;
    framed.state.OverlaySize = 6;  // as large as it is
    framed.Add(20, 20, "FF0000");
    framed.Step(2);
    EXPECT_EQ(Drawn(framed.screen.P2), Rows(8, "PPPPPPPPP"));
}

TEST(OverlapFrame, OnlyWithAnOverlayAndWhereAMacroDidNotTurnItOff) {
    Framed none(0);
    none.Step(1);
    EXPECT_EQ(none.OnScreen(3, 3), 0xFFFF0000u);
    EXPECT_EQ(none.OnScreen(2, 2), kBlack) << "the ground without an overlay";
    EXPECT_EQ(none.OnScreen(1, 1), kBlack);
    for (const int16_t off : {1, -1, 7}) {
        Framed borderless;
        borderless.state.OverlayFrameOff = off;
        borderless.Step(1);
        EXPECT_EQ(borderless.OnScreen(3, 3), 0xFFFF0000u);
        EXPECT_EQ(borderless.OnScreen(2, 2), kGround) << off;
        EXPECT_EQ(borderless.OnScreen(6, 5), kGround);
    }
}

TEST(OverlapFrame, ANumberBeyondTheMenusCountsAsAnOverlay) {
    Framed framed(9);
    framed.Step(1);
    EXPECT_EQ(framed.OnScreen(2, 2), kWhite);
    Framed negative(-1);
    negative.Step(1);
    EXPECT_NE(negative.OnScreen(2, 2), kWhite);
}

TEST(OverlapFrame, NoPictureNoFrame) {
    Framed framed;
    framed.holder.SetPicture(nullptr);
    DrawOverlapFrame(framed.app);
    EXPECT_EQ(Drawn(framed.screen.P2), Rows(8, "........."));
}

}  // namespace
}  // namespace picture

// Macros on a full-screen canvas that has more pixels than units.
#include <gtest/gtest.h>

#include "macro/cutouts.h"
#include "macro_support.h"
#include "model/picture_controls.h"
#include "model/windows/main_window.h"

namespace {

using macro_tests::MacroShow;
using platform::Rect;
using platform::Size;

constexpr platform::Color kPaper = 0x112233, kGround = 0x445566;

struct Enlarged : testing::Test, MacroShow {
    Enlarged() { SetPixels({1200, 900}); }

    void SetPixels(Size pixels) {
        for (model::PictureBox* layer : {&screen.P2, &screen.P3, &screen.P4}) {
            layer->SetSize(800 * 15, 600 * 15, pixels);
        }
        fake.files.Put(u"C:\\show\\star.bmp", "PIC 30 21 ff0000");
        screen.P2.canvas.Fill(kPaper);
        screen.P3.canvas.Fill(kGround);
        screen.P4.canvas.Fill(kGround);
        GoFullScreen();
    }
    /// Exactly the pixels from edge to edge came back from the background.
    void ExpectRestored(int left, int top, int right, int bottom) {
        platform::Canvas expected;
        expected.Resize(1200, 900, kPaper);
        expected.FillRect({left, top, right - left, bottom - top}, kGround);
        EXPECT_EQ(screen.P2.canvas.Pixels().pixels, expected.Pixels().pixels);
    }
};

TEST_F(Enlarged, APieceHasUnitsForTheRulesAndPixelsForTheEye) {
    Play(u"CurrentX=15\r\nPicPB03(0,\"star.bmp\",\"\")\r\n");
    model::PictureBox& piece = screen.Picture1(3);
    EXPECT_EQ(piece.Left(), 55);
    EXPECT_EQ(piece.ScaleWidth(), 30);
    EXPECT_EQ(piece.Width(), 450);
    EXPECT_EQ(piece.Picture()->width, 45);
    EXPECT_EQ(piece.Picture()->height, 32) << "31.5, upwards";
    EXPECT_EQ(form1.Picture2(3).Picture()->width, 30);
    EXPECT_EQ(fake.trace.Of("cutout").at(0).Number("width"), 30);
}

TEST_F(Enlarged, ShapesAreCutInPixelsAndPressedInUnits) {
    fake.files.Put(u"C:\\show\\p.dat", "KVS_PICTYPE_DATA\r\n10,0,20,0,20,21,10,21\r\n");
    Play(
        u"PicPBData(0,\"p.dat\")\r\nPicPB00(0,\"star.bmp\",\"\")\r\n"
        u"PicPBType=2\r\nPicPB01(0,\"star.bmp\",\"\")\r\n");
    model::PictureBox& piece = screen.Picture1(0);
    EXPECT_EQ(piece.WindowRgn()->rects, (std::vector<Rect>{{15, 0, 15, 32}}));
    EXPECT_FALSE(piece.TakesPress(9, 5));
    EXPECT_TRUE(piece.TakesPress(10, 5));
    EXPECT_TRUE(piece.TakesPress(19, 20));
    EXPECT_FALSE(piece.TakesPress(20, 5));
    EXPECT_EQ(state.CutoutMaxX[0], 20) << "bounds stay units";
    // The diamond has steps of pixels.
    EXPECT_GT(screen.Picture1(1).WindowRgn()->rects.size(), 21u);
}

TEST_F(Enlarged, APieceThatVanishesLeavesItsPlaceExactly) {
    Play(u"CurrentX=15\r\nCurrentY=4\r\nPicPB00(0,\"star.bmp\",\"\")\r\nPicPB00(0,\"\",\"\")\r\n");
    // Units 54 to 86 and 33 to 56, times one and a half.
    ExpectRestored(81, 50, 129, 84);
}

TEST_F(Enlarged, MotionRestoresWhatItLeavesWithoutSeams) {
    Play(u"PicPB00(0,\"star.bmp\",\"\")\r\nMovPB00(7,0,1)\r\n");
    // Rectangles leave strips a unit wide, one line longer below: 40 to 47, 30 to 52.
    ExpectRestored(60, 45, 71, 78);
    EXPECT_EQ(screen.Picture1(0).Left(), 47);
}

TEST_F(Enlarged, OutlinesAndShadowsReachAsFarInUnits) {
    Play(u"Kage=1\r\nZureX=-4\r\nZureY=3\r\n[テキスト]\r\nA\r\n");
    ASSERT_EQ(fake.textRenderer.drawn.size(), 4u);
    EXPECT_EQ(fake.textRenderer.drawn[0].x, 40 - 6) << "offsets are pixels of the canvas";
    EXPECT_EQ(fake.textRenderer.drawn[1].x, -4) << "of the window's";
    fake.textRenderer.drawn.clear();
    Play(u"Kage=2\r\nZureX=2\r\nZureY=1\r\n[テキスト]\r\nA\r\n");
    std::set<std::pair<int, int>> onScreen, inWindow;
    for (const auto& line : fake.textRenderer.drawn) {
        if (line.color != platform::Rgb(20, 20, 20)) {
            continue;
        }
        const bool screens = line.canvas == &screen.P2.canvas;
        (screens ? onScreen : inWindow).insert({line.x, line.y});
    }
    // Two units are 3 pixels, one is 2: every pixel within has a print.
    EXPECT_EQ(onScreen.size(), 7u * 5u);
    EXPECT_EQ(inWindow.size(), 5u * 3u);
}

TEST_F(Enlarged, PiecesFollowAMonitorWithOtherPixels) {
    Play(u"PicPBType=1\r\nPicPB00(0,\"star.bmp\",\"\")\r\n");
    state.CutoutActive[0] = 1;
    for (model::PictureBox* layer : {&screen.P2, &screen.P3, &screen.P4}) {
        layer->SetSize(800 * 15, 600 * 15, {1600, 1200});
    }
    macro::RefitPieces(app);
    EXPECT_EQ(screen.Picture1(0).Picture()->width, 60);
    EXPECT_TRUE(screen.Picture1(0).WindowRgn()->Contains(30, 41));
    EXPECT_FALSE(screen.Picture1(0).WindowRgn()->Contains(1, 1));
}

}  // namespace

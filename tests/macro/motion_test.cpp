// MOVPB and OVERPIC: paths, bounds, what comes back where a piece was, and the time it takes.
#include <gtest/gtest.h>

#include "macro/motion.h"
#include "macro_support.h"
#include "model/picture_controls.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"

namespace {

using macro_tests::MacroShow;
using platform::Rect;

constexpr platform::Color kPaper = 0x112233, kGround = 0x445566;

/// A piece of 4 x 3 pixels stands at (100, 50) of the canvas in force.
struct Motion : testing::Test, MacroShow {
    Motion() {
        fake.files.Put(u"C:\\show\\box.bmp", "PIC 4 3 ff0000");
        screen.P2.canvas.Fill(kPaper);
        screen.P4.canvas.Fill(kGround);
        state.TextOriginScreen = 1;
        macro::ClearMacroObjects(app);  // as every slide step begins
    }
    void Move(const Text& before, const Text& motion) {
        Play(u"CurrentX=100\r\nCurrentY=50\r\n" + before + u"PICPB2(0,\"box.bmp\",\"\")\r\n" +
             motion);
    }
    void ExpectAt(model::PictureBox& piece, int x, int y) {
        EXPECT_EQ(piece.Left(), x);
        EXPECT_EQ(piece.Top(), y);
    }
    void ExpectRestored(const std::vector<Rect>& places) {
        platform::Canvas expected;
        expected.Resize(800, 600, kPaper);
        for (const Rect& place : places) {
            expected.FillRect(place, kGround);
        }
        EXPECT_EQ(screen.P2.canvas.Pixels().pixels, expected.Pixels().pixels);
    }
    void PutPolygon(const std::string& points) {
        fake.files.Put(u"C:\\show\\cut.dat", "KVS_PICTYPE_DATA\r\n" + points);
    }
};

TEST_F(Motion, GoesDiagonallyThenStraight) {
    std::vector<std::pair<int, int>> path;
    fake.loop.onPump = [&] {
        const std::pair<int, int> now{form1.Picture2(2).Left, form1.Picture2(2).Top};
        if (path.empty() || path.back() != now) {
            path.push_back(now);
        }
    };
    Move(u"", u"MOVPB02(3,-1,5)");
    const std::vector<std::pair<int, int>> expected = {{0, 0},    {100, 50}, {101, 50},
                                                       {101, 49}, {102, 49}, {103, 49}};
    EXPECT_EQ(path, expected) << "x before y within a pass";
    EXPECT_EQ(fake.loop.sleeps, (std::vector<int>{5, 5, 5}))
        << "the fourth pass only finds the end";
    const auto lines = fake.trace.Of("cutout");
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[1].String("state"), u"moved");
    EXPECT_EQ(lines[1].Number("x"), 103);
    EXPECT_EQ(lines[1].Number("y"), 49);
}

TEST_F(Motion, OnlyTheControlOfTheModeMoves) {
    Move(u"", u"MOVPB2(3,1)");
    ExpectAt(form1.Picture2(2), 103, 51);
    ExpectAt(screen.Picture1(2), 100, 50);
    GoFullScreen();
    for (const Text type : {u"PicPBType=0\r\n", u"PicPBType=3\r\n"}) {
        Move(type, u"MOVPB2(3,1)\r\nMOVPB2(2,-4)");
        ExpectAt(form1.Picture2(2), 100, 50);
        ExpectAt(screen.Picture1(2), 105, 47);
    }
}

TEST_F(Motion, AShapedPieceOfTheWindowMovesFromItsOwnPlace) {
    state.PictureX = 40;
    state.TextOriginScreen = 0;  // the full screen's piece stands at 140
    Move(u"PicPBType=1\r\n", u"MOVPB2(3,2)");
    ExpectAt(form1.Picture2(2), 103, 52);
    ExpectAt(screen.Picture1(2), 140, 50);
}

TEST_F(Motion, NowhereIsOnePass) {
    Move(u"", u"MOVPB2(0,0,9)\r\nMOVPB2\r\nMOVPB2(,)\r\nMOVPB2(x,y,z)");
    EXPECT_TRUE(fake.loop.sleeps.empty());
    ExpectAt(form1.Picture2(2), 100, 50);
}

TEST_F(Motion, WhatIsNotThereDoesNotMove) {
    Play(u"MOVPB2(50,50,9)\r\nMOVPB63(50,50)\r\nMOVPB-1(1,1)");
    EXPECT_TRUE(fake.loop.sleeps.empty());
    Move(u"", u"PICPB2(0,\"\",\"\")\r\nMOVPB2(5,5)");
    EXPECT_TRUE(fake.loop.sleeps.empty());
    EXPECT_EQ(fake.trace.Of("cutout").back().String("state"), u"removed");
}

TEST_F(Motion, TheWaitHasADefaultAndLimits) {
    const std::pair<Text, int> waits[] = {{u"MOVPB2(1,0)", 1},         {u"MOVPB2(1,0,)", 1},
                                          {u"MOVPB2(1,0,5000)", 1000}, {u"MOVPB2(1,0,1000)", 1000},
                                          {u"MOVPB2(1,0,0)", 0},       {u"MOVPB2(1,0,-7)", 0},
                                          {u"MOVPB2(1,0,1e300)", 1000}};
    for (const auto& [line, wait] : waits) {
        fake.loop.sleeps.clear();
        Move(u"", line);
        EXPECT_EQ(fake.loop.sleeps, std::vector<int>{wait}) << text::ToUtf8(line);
    }
}

TEST_F(Motion, ARectangleUncoversStrips) {
    GoFullScreen();
    Move(u"", u"MOVPB2(1,0)");
    ExpectRestored({{100, 50, 1, 4}});
    screen.P2.canvas.Fill(kPaper);
    state.CutoutActive[2] = 0;  // shown anew without restoring
    Move(u"", u"MOVPB2(-1,0)");
    ExpectRestored({{103, 50, 1, 3}});
    screen.P2.canvas.Fill(kPaper);
    state.CutoutActive[2] = 0;
    Move(u"", u"MOVPB2(0,1)");
    ExpectRestored({{100, 50, 5, 1}});
    screen.P2.canvas.Fill(kPaper);
    state.CutoutActive[2] = 0;
    Move(u"", u"MOVPB2(0,-1)");
    ExpectRestored({{100, 52, 4, 1}});
}

TEST_F(Motion, AShapeUncoversItsWholeOldPlace) {
    GoFullScreen();
    Move(u"PicPBType=3\r\n", u"MOVPB2(2,0)");
    // Passes: from 100, from 101, and the one that finds the end at 102.
    ExpectRestored({{100, 50, 6, 3}});
}

TEST_F(Motion, APolygonUncoversItsBox) {
    fake.files.Put(u"C:\\show\\box.bmp", "PIC 30 30");
    PutPolygon("5,4,20,4,20,15");
    GoFullScreen();
    Move(u"PICPBDATA(2,\"cut.dat\")\r\n", u"MOVPB2(0,1)");
    ExpectRestored({{105, 54, 15, 12}});
}

TEST_F(Motion, APolygonAtTheEdgeUncoversItsWholePlace) {
    for (const char* points : {"0,4,20,4,20,15", "5,0,20,4,20,15", ""}) {
        screen.P2.canvas.Fill(kPaper);
        state.CutoutActive[2] = 0;
        fake.files.Put(u"C:\\show\\box.bmp", "PIC 30 30");
        PutPolygon(points);
        GoFullScreen();
        Move(u"PICPBDATA(2,\"cut.dat\")\r\nOverPic=1\r\n", u"MOVPB2(1,0)");
        ExpectRestored({{100, 50, 31, 30}});
    }
}

TEST_F(Motion, StaysInsideTheCanvas) {
    Move(u"", u"MOVPB2(1000,1000)");
    ExpectAt(form1.Picture2(2), 640 - 4, 480 - 3);
    EXPECT_EQ(fake.loop.sleeps.size(), 536u);  // x has 536 steps to go, y 427
    Move(u"", u"MOVPB2(-1000,-1000)");
    ExpectAt(form1.Picture2(2), 0, 0);
    GoFullScreen();
    Move(u"", u"MOVPB2(1000,1000)");
    ExpectAt(screen.Picture1(2), 800 - 4, 600 - 3);
    Move(u"PicPBType=1\r\n", u"MOVPB2(1000,1000)\r\nMOVPB2(-2000,0)");
    ExpectAt(screen.Picture1(2), 0, 600 - 3);
}

TEST_F(Motion, APolygonsBoxCountsAtTheBounds) {
    PutPolygon("1,2,3,2,3,3");  // of the 4 x 3 pixels
    GoFullScreen();
    Move(u"PICPBDATA(2,\"cut.dat\")\r\n", u"MOVPB2(1000,1000)");
    ExpectAt(screen.Picture1(2), 800 - 3, 600 - 3);
    Move(u"PICPBDATA(2,\"cut.dat\")\r\n", u"MOVPB2(-1000,-1000)");
    ExpectAt(screen.Picture1(2), -1, -2);
}

TEST_F(Motion, WithoutBoundsRunsOffTheScreen) {
    GoFullScreen();
    Move(u"OverPic=1\r\n", u"MOVPB2(-300,700)");
    ExpectAt(screen.Picture1(2), -200, 750);
    Move(u"OverPic=1\r\nOverPic=7\r\nOverPic=-2\r\n", u"MOVPB2(-300,0)");
    ExpectAt(screen.Picture1(2), -200, 50);
    Move(u"", u"MOVPB2(-300,0)");
    ExpectAt(screen.Picture1(2), 0, 50);  // 0 again at the start of each slide
}

TEST_F(Motion, StaysInsideThePicture) {
    app.windows.form4.Picture1.SetPicture(std::make_shared<platform::Bitmap>(300, 200));
    Move(u"OverPic=-1\r\n", u"MOVPB2(1000,1000)");
    ExpectAt(form1.Picture2(2), 296, 197);
    Move(u"OverPic=-1\r\n", u"MOVPB2(-1000,-1000)");
    ExpectAt(form1.Picture2(2), 0, 0);
    GoFullScreen();  // the picture lies at (40, 30)
    Move(u"OverPic=-1\r\n", u"MOVPB2(1000,1000)");
    ExpectAt(screen.Picture1(2), 336, 227);
    Move(u"OverPic=-1\r\n", u"MOVPB2(-1000,-1000)");
    ExpectAt(screen.Picture1(2), 40, 30);
}

TEST_F(Motion, FractionsStepUntilTheyAreReached) {
    Move(u"", u"MOVPB2(2.5,-1.1)");
    ExpectAt(form1.Picture2(2), 103, 48);
    Move(u"", u"MOVPB2(&H10,&O7)");
    ExpectAt(form1.Picture2(2), 116, 57);
}

TEST_F(Motion, ChanceWords) {
    // RND ranges over the canvas of the window, 640 x 480; x is drawn before y.
    fake.loop.randomNumbers = {0.51, 0.49};
    Move(u"", u"MOVPB2( rnd , Rnd )");
    ExpectAt(form1.Picture2(2), 112, 40);  // Int(652.8) - 640 = 12, Int(470.4) - 480 = -10
    fake.loop.randomNumbers = {0.99, 0.0};
    Move(u"", u"MOVPB2(RND+-,RND+-)");
    ExpectAt(form1.Picture2(2), 109, 40);  // Fix(9.8), Fix(-10)
    fake.loop.randomNumbers = {0.99, 0.99};
    Move(u"", u"MOVPB2(RND+,RND-)");
    ExpectAt(form1.Picture2(2), 109, 41);  // Fix(9.9), Fix(-9.9)
    GoFullScreen();                        // 800 x 600
    fake.loop.randomNumbers = {0.51, 0.49};
    Move(u"", u"MOVPB2(RND,RND)");
    ExpectAt(screen.Picture1(2), 116, 38);  // Int(816) - 800, Int(588) - 600
    app.windows.form4.Picture1.SetPicture(std::make_shared<platform::Bitmap>(300, 200));
    fake.loop.randomNumbers = {0.51, 0.49};
    Move(u"OverPic=-1\r\n", u"MOVPB2(RND,RND)");
    ExpectAt(screen.Picture1(2), 106, 46);  // Int(306) - 300, Int(196) - 200
}

TEST_F(Motion, AStopLeavesThePieceWhereItStands) {
    fake.loop.At(25, [&] { state.StopRequest = 1; });
    Move(u"", u"MOVPB2(100,0,10)\r\nCurrentX=7\r\n");
    ExpectAt(form1.Picture2(2), 104, 50);  // passes at 0, 10, 20 and 30 ms
    EXPECT_TRUE(form1.Picture2(2).Visible);
    EXPECT_EQ(form1.Picture1.canvas.penX, 100) << "the macro ended";
}

TEST_F(Motion, AJumpEndsItAtThePass) {
    fake.loop.At(15, [&] { state.MacroJumpChosen = 1; });
    Move(u"", u"MOVPB2(100,0,10)\r\n");
    EXPECT_EQ(fake.trace.Of("cutout")[1].Number("x"), 103);  // passes at 0, 10 and 20 ms
    EXPECT_EQ(state.MacroEndShow, 1);
}

TEST_F(Motion, TheFullScreenMayCloseUnderIt) {
    GoFullScreen();
    fake.loop.At(15, [&] {
        macro::ClearMacroObjects(app);
        state.FullScreenActive = 0;
        state.FullScreenClosed = 1;
    });
    Move(u"PicPBType=2\r\n", u"MOVPB2(100,0,10)\r\n");
    EXPECT_LT(Now(), 50);
    EXPECT_EQ(fake.trace.Of("cutout").back().String("state"), u"removed");
}

TEST_F(Motion, HugeDistancesEnd) {
    Move(u"OverPic=1\r\n", u"MOVPB2(1e300,-99999999999,0)");
    ExpectAt(form1.Picture2(2), 100 + 32767, 50 - 32767);
}

TEST_F(Motion, SixtyThreePiecesMove) {
    GoFullScreen();
    Text lines;
    for (int i = 0; i <= 62; ++i) {
        const Text number = text::FromUtf8(std::to_string(i));
        lines += u"PICPB" + number + u"(0,\"box.bmp\",\"\")\r\nMOVPB" + number + u"(9,9)\r\n";
    }
    Play(lines);
    for (auto& piece : screen.Picture1) {
        ExpectAt(*piece, 9, 9);
    }
    EXPECT_EQ(Now(), 63 * 9);
}

}  // namespace

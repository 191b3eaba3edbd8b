// PICPB, PICPBDATA, PICPBTYPE: pieces appear, take their shapes, and vanish.
#include "macro/cutouts.h"

#include <gtest/gtest.h>

#include "macro_support.h"
#include "model/picture_controls.h"
#include "model/windows/main_window.h"
#include "playback/macro_clicks.h"

namespace {

using macro_tests::MacroShow;
using platform::Rect;

constexpr platform::Color kPaper = 0x112233, kGround = 0x445566;

struct Cutouts : testing::Test, MacroShow {
    Cutouts() {
        fake.files.Put(u"C:\\show\\star.bmp", "PIC 30 20 ff0000");
        fake.files.Put(u"C:\\show\\moon.bmp", "PIC 10 12 00ff00");
        // The canvas and its clean copy differ, so that a restored place tells itself.
        screen.P2.canvas.Fill(kPaper);
        screen.P4.canvas.Fill(kGround);
    }
    /// Exactly the pixels of these rectangles came back from the background.
    void ExpectRestored(const std::vector<Rect>& places) {
        platform::Canvas expected;
        expected.Resize(800, 600, kPaper);
        for (const Rect& place : places) {
            expected.FillRect(place, kGround);
        }
        EXPECT_EQ(screen.P2.canvas.Pixels().pixels, expected.Pixels().pixels);
    }
    void PutPoints(TextView name, const std::string& points) {
        fake.files.Put(name, "KVS_PICTYPE_DATA\r\n" + points);
    }
    std::array<int, 4> Box(size_t i) {
        return {state.CutoutMinX[i], state.CutoutMinY[i], state.CutoutMaxX[i], state.CutoutMaxY[i]};
    }
    void StopAt(double milliseconds) {
        fake.loop.At(milliseconds, [this] { state.StopRequest = 1; });
    }
};

using Bounds = std::array<int, 4>;
constexpr Bounds kNoBounds = {9999, 9999, 0, 0};

TEST_F(Cutouts, FilesInAFolderBesideTheSlideAreFound) {
    fake.files.Put(u"C:\\show\\parts\\star.bmp", "PIC 7 8 0000ff");
    fake.files.Put(u"C:\\show\\parts\\a.wav", "");
    PutPoints(u"C:\\show\\parts\\p.dat", "0,0\r\n5,0\r\n5,6\r\n");
    Play(
        u"PicPBData(3,\"parts\\p.dat\")\r\n"
        u"PicPB03(0,\"parts\\star.bmp\",\"parts\\a.gif\")\r\n");
    EXPECT_EQ(state.CutoutPicture[3], u"C:\\show\\PARTS\\STAR.BMP");
    EXPECT_EQ(state.CutoutAction[3], u"PARTS\\A.GIF") << "none beside the slide: as it stands";
    EXPECT_EQ(form1.Picture2(3).ScaleWidth(), 7);
    EXPECT_EQ(Box(3), (std::array<int, 4>{0, 0, 5, 6}));
}

TEST_F(Cutouts, APieceStandsInBothWindowsWhereThePensAre) {
    GoFullScreen();
    Play(u"CurrentX=15\r\nCurrentY=20\r\nPicPB03(0,\"star.bmp\",\"\")  //星\r\n");
    model::PictureBox& inWindow = form1.Picture2(3);
    model::PictureBox& onScreen = screen.Picture1(3);
    EXPECT_TRUE(inWindow.Visible && onScreen.Visible);
    EXPECT_EQ(inWindow.Left(), 15);
    EXPECT_EQ(inWindow.Top(), 20);
    EXPECT_EQ(onScreen.Left(), 55);
    EXPECT_EQ(onScreen.Top(), 50);
    EXPECT_EQ(onScreen.ScaleWidth(), 30);
    EXPECT_EQ(onScreen.ScaleHeight(), 20);
    EXPECT_EQ(inWindow.Width(), 450);
    EXPECT_EQ(inWindow.Shown().pixels.front(), 0xFFFF0000u);
    EXPECT_EQ(state.CutoutActive[3], 1);
    EXPECT_EQ(state.CutoutJump[3], 0);
    EXPECT_EQ(state.CutoutAction[3], u"");
    EXPECT_EQ(inWindow.MousePointer(), 0);
    EXPECT_EQ(state.MacroButtonsShown, 0);
    const auto lines = fake.trace.Of("cutout");
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].Number("index"), 3);
    EXPECT_EQ(lines[0].Number("x"), 55);
    EXPECT_EQ(lines[0].Number("y"), 50);
    EXPECT_EQ(lines[0].Number("width"), 30);
    EXPECT_EQ(lines[0].Number("height"), 20);
    EXPECT_EQ(lines[0].String("picture"), u"C:\\show\\STAR.BMP");
    EXPECT_EQ(lines[0].String("state"), u"shown");
}

TEST_F(Cutouts, TheTwoCharactersAfterTheWordAreTheNumber) {
    const std::pair<TextView, int> written[] = {
        {u"PICPB00(0,\"\",\"\")", 0},  {u"PICPB0(0,\"\",\"\")", 0},   {u"PICPB3(0,\"\",\"\")", 3},
        {u"PICPB62(0,\"\",\"\")", 62}, {u"PICPB63(0,\"\",\"\")", -1}, {u"PICPB-1(0,\"\",\"\")", -1},
        {u"PICPB99(0,\"\",\"\")", -1}, {u"MOVPB07(1,1)", 7},          {u"PICPB", 0}};
    for (const auto& [line, index] : written) {
        EXPECT_EQ(macro::CutoutIndex(line).value_or(-1), index) << text::ToUtf8(line);
    }
    Play(u"PICPB63(1,\"star.bmp\",\"\")\r\nPICPB-1(1,\"star.bmp\",\"\")\r\n");
    EXPECT_TRUE(fake.trace.Of("cutout").empty());
    EXPECT_EQ(state.MacroButtonsShown, 0);
}

TEST_F(Cutouts, WhatCanBeClickedMakesTheSlideWaitAndShowsThePointer) {
    for (const TextView action : {u"a.wav", u"a.EXE", u"a.mp4", u"a.Wmv", u"a.mov", u"a.avi"}) {
        app.windows.ShowCursor(false);
        state.MacroCursorHidden = 1;
        state.StopRequest = 0;
        StopAt(Now() + 100);
        const double before = Now();
        Play(Text(u"PICPB1(0,\"star.bmp\",\"") + Text(action) + u"\")");
        EXPECT_GE(Now() - before, 100) << "held until the stop";
        EXPECT_EQ(form1.Picture2(1).MousePointer(), 99);
        EXPECT_EQ(screen.Picture1(1).MousePointer(), 99);
        EXPECT_EQ(state.MacroCursorHidden, 0);
        EXPECT_EQ(form1.CursorCount(), 0);
        EXPECT_EQ(state.CutoutAction[1], u"C:\\show\\" + text::Upper(action));
    }
}

TEST_F(Cutouts, AJumpAloneCanBeClicked) {
    playback::AttachWindowMacroClicks(app);
    fake.loop.At(200, [&] { form1.Picture2(4).Click(); });
    Play(u"PICPB04(2,\"star.bmp\",\"\")\r\n");
    EXPECT_EQ(state.SlideIndex, 2);  // 1 + 2 - 1
    EXPECT_EQ(state.MacroEndShow, 1);
    EXPECT_FALSE(form1.Picture2(4).Visible);
    EXPECT_EQ(state.CutoutJump[4], 0) << "the exit clears the tables";
}

TEST_F(Cutouts, AnUnknownActionIsKeptAndPlain) {
    app.windows.ShowCursor(false);
    Play(u"PICPB1(0,\"star.bmp\",\"D:\\x\\notes.txt\")");
    EXPECT_EQ(state.MacroButtonsShown, 0);
    EXPECT_EQ(form1.Picture2(1).MousePointer(), 0);
    EXPECT_EQ(form1.CursorCount(), -1);
    EXPECT_EQ(state.CutoutAction[1], u"D:\\X\\NOTES.TXT") << "a path stays as it is";
}

TEST_F(Cutouts, MissingPartsReadAsNothing) {
    Play(u"PICPB1(\"star.bmp\"\r\nPICPB2(70000,\"moon.bmp\",\"\r\nPICPB3(0,star.bmp)\r\nPICPB4");
    EXPECT_EQ(state.CutoutActive[1], 1) << "without a comma the jump is 0";
    EXPECT_EQ(state.CutoutJump[1], 0);
    EXPECT_EQ(state.CutoutActive[2], 1);
    EXPECT_EQ(state.CutoutJump[2], 0) << "a jump beyond 16 bits is none";
    EXPECT_EQ(state.CutoutActive[3], 0) << "without quotes there is no name";
    EXPECT_EQ(state.CutoutActive[4], 0);
}

TEST_F(Cutouts, ACommentCutsTheLineAlsoInAName) {
    Play(u"PICPB1(0,\"C://star.bmp\",\"\")\r\n");
    EXPECT_EQ(state.CutoutActive[1], 0);
}

TEST_F(Cutouts, APictureThatCannotBeLoadedLeavesTheTablesSet) {
    fake.files.Put(u"C:\\show\\text.bmp", "no picture");
    GoFullScreen();
    for (const TextView name : {u"text.bmp", u"missing.bmp", u"..\\..\\x", u"\\", u"C:\\show\\"}) {
        state.CutoutActive[5] = 0;
        Play(Text(u"PICPBTYPE=3\r\nPICPB5(0,\"") + Text(name) +
             u"\",\"a.txt\")\r\nMOVPB5(3,3)\r\n");
        EXPECT_TRUE(screen.Picture1(5).Visible);
        EXPECT_EQ(screen.Picture1(5).Picture(), nullptr);
        EXPECT_EQ(screen.Picture1(5).ScaleWidth(), 0);
        EXPECT_EQ(state.CutoutActive[5], 1);
        EXPECT_EQ(state.CutoutType[5], 3);
    }
    EXPECT_TRUE(fake.dialogs.messages.empty());
}

TEST_F(Cutouts, AnEmptyNameRemovesThePieceAndItsBackgroundComesBack) {
    GoFullScreen();
    Play(u"CurrentX=15\r\nCurrentY=20\r\nPICPB3(0,\"star.bmp\",\"\")\r\nPICPB3(0,\"\",\"\")\r\n");
    EXPECT_FALSE(form1.Picture2(3).Visible || screen.Picture1(3).Visible);
    EXPECT_EQ(screen.Picture1(3).Picture(), nullptr);
    EXPECT_EQ(form1.Picture2(3).Picture(), nullptr);
    EXPECT_EQ(state.CutoutActive[3], 0);
    ExpectRestored({{54, 49, 32, 22}});
    const auto lines = fake.trace.Of("cutout");
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[1].String("state"), u"removed");
    EXPECT_EQ(lines[1].Number("width"), 30) << "as it stood";
}

TEST_F(Cutouts, InTheWindowNothingIsRestored) {
    Play(u"PICPB3(0,\"star.bmp\",\"\")\r\nPICPB3(0,\"moon.bmp\",\"\")\r\nPICPB3(0,\"\",\"\")\r\n");
    EXPECT_FALSE(form1.Picture2(3).Visible || screen.Picture1(3).Visible);
    ExpectRestored({});
}

TEST_F(Cutouts, APieceShownAnewGivesItsOldPlaceBack) {
    GoFullScreen();
    bool hidden = false;
    fake.loop.onPump = [&] { hidden |= state.CutoutActive[3] == 1 && !screen.Picture1(3).Visible; };
    Play(
        u"CurrentX=10\r\nPICPB3(0,\"star.bmp\",\"\")\r\nCurrentX=100\r\nPICPB3(0,\"moon.bmp\","
        u"\"\")");
    EXPECT_TRUE(hidden) << "events run while it is away";
    ExpectRestored({{49, 29, 32, 22}});
    EXPECT_EQ(screen.Picture1(3).Left(), 140);
    EXPECT_EQ(screen.Picture1(3).ScaleWidth(), 10);
    EXPECT_TRUE(screen.Picture1(3).Visible);
}

TEST_F(Cutouts, APolygonShownAnewGivesItsBoxBack) {
    PutPoints(u"C:\\show\\cut.dat", "5,4\r\n20,4\r\n20,15\r\n5,15\r\n");
    GoFullScreen();
    Play(u"PICPBDATA(3,\"cut.dat\")\r\nPICPB3(0,\"star.bmp\",\"\")\r\nPICPB3(0,\"star.bmp\",\"\")");
    EXPECT_EQ(Box(3), (Bounds{5, 4, 20, 15}));
    ExpectRestored({{45, 34, 16, 12}});
}

TEST_F(Cutouts, OnlyTheWindowOfTheModeIsShaped) {
    Play(u"PICPBTYPE=2\r\nPICPB1(0,\"star.bmp\",\"\")");
    EXPECT_NE(form1.Picture2(1).WindowRgn(), nullptr);
    EXPECT_EQ(screen.Picture1(1).WindowRgn(), nullptr);
    EXPECT_EQ(state.CutoutType[1], 2);
    EXPECT_FALSE(form1.Picture2(1).TakesPress(0, 0));
    EXPECT_TRUE(form1.Picture2(1).TakesPress(15, 10));
    EXPECT_FALSE(form1.Picture2(1).TakesPress(30, 10)) << "outside the box";
    GoFullScreen();
    Play(u"PICPBTYPE=1\r\nPICPB1(0,\"star.bmp\",\"\")");
    EXPECT_EQ(form1.Picture2(1).WindowRgn(), nullptr);
    EXPECT_FALSE(screen.Picture1(1).TakesPress(1, 1));
    EXPECT_EQ(state.CutoutType[1], 1);
}

TEST_F(Cutouts, TheShapeStaysUntilItIsChangedOrTheSlideEnds) {
    Play(
        u"PICPBTYPE=4\r\nPICPB1(0,\"star.bmp\",\"\")\r\nPICPB2(0,\"star.bmp\",\"\")\r\nPICPBTYPE="
        u"5\r\n"
        u"PICPB3(0,\"star.bmp\",\"\")\r\nPICPBTYPE=1\r\n");
    EXPECT_EQ(state.CutoutType[1], 4);
    EXPECT_EQ(state.CutoutType[2], 4);
    EXPECT_EQ(state.CutoutType[3], 0) << "an unknown shape is a rectangle";
    EXPECT_TRUE(form1.Picture2(3).WindowRgn()->Covers({30, 20}));
    EXPECT_EQ(state.PicPbType, 1);
    Play(u"");
    EXPECT_EQ(state.PicPbType, 0);
}

TEST_F(Cutouts, TheDataFileNamesTheShape) {
    PutPoints(u"C:\\show\\cut.dat", "5,4,20,4\r\n 20 , 15,  ,-5,15\r\n7");
    Play(u"PICPBDATA( 3 , \"cut.dat\" ) //形\r\nPICPB3(0,\"star.bmp\",\"\")\r\n");
    EXPECT_EQ(state.CutoutDataFile[3], u"C:\\show\\CUT.DAT");
    EXPECT_EQ(state.CutoutType[3], 999);
    EXPECT_EQ(Box(3), (Bounds{-5, 4, 20, 15})) << "a blank first field and an odd last one are out";
    EXPECT_TRUE(form1.Picture2(3).TakesPress(19, 10));
    EXPECT_FALSE(form1.Picture2(3).TakesPress(20, 10));
    EXPECT_FALSE(form1.Picture2(3).TakesPress(19, 3));
    Play(u"");
    EXPECT_EQ(state.CutoutDataFile[3], u"C:\\show\\CUT.DAT") << "outlives the slide";
}

TEST_F(Cutouts, AFileOfAnotherNumberIsNotUsed) {
    PutPoints(u"C:\\show\\cut.dat", "5,4,20,4,20,15");
    Play(u"PICPBDATA(3,\"cut.dat\")\r\nPICPB4(0,\"star.bmp\",\"\")\r\n");
    EXPECT_EQ(state.CutoutType[4], 999);
    EXPECT_EQ(form1.Picture2(4).WindowRgn(), nullptr);
    EXPECT_EQ(Box(4), kNoBounds);
    EXPECT_TRUE(form1.Picture2(4).Visible);
}

TEST_F(Cutouts, BadDataFilesLeaveThePieceWhole) {
    fake.files.Put(u"C:\\show\\other.dat", "KVS_PICTYPE\r\n1,1,20,1,20,15\r\n");
    fake.files.Put(u"C:\\show\\empty.dat", "");
    PutPoints(u"C:\\show\\none.dat", "");
    for (const TextView name :
         {u"other.dat", u"empty.dat", u"none.dat", u"missing.dat", u"..", u"/dev/zero", u""}) {
        Play(Text(u"PICPBDATA(3,\"") + Text(name) + u"\")\r\nPICPB3(0,\"star.bmp\",\"\")");
        EXPECT_EQ(form1.Picture2(3).WindowRgn(), nullptr) << text::ToUtf8(name);
        EXPECT_EQ(Box(3), kNoBounds);
        EXPECT_EQ(state.CutoutType[3], 999);
    }
}

TEST_F(Cutouts, FiveThousandPointsAreTaken) {
    std::string points;
    for (int i = 0; i < 4999; ++i) {
        points += "3,4\r\n";
    }
    PutPoints(u"C:\\show\\cut.dat", points + "8,9\r\n25,25\r\n" + std::string(95000 * 5, '7'));
    Play(u"PICPBDATA(3,\"cut.dat\")\r\nPICPB3(0,\"star.bmp\",\"\")");
    EXPECT_EQ(Box(3), (Bounds{3, 4, 8, 9}));
}

TEST_F(Cutouts, CoordinatesBeyond16BitsAreNoBounds) {
    PutPoints(u"C:\\show\\cut.dat", "40000,4\r\n20,-99999999999\r\n1,2\r\n");
    Play(u"PICPBDATA(3,\"cut.dat\")\r\nPICPB3(0,\"star.bmp\",\"\")");
    EXPECT_EQ(state.CutoutMinX[3], 1);
    EXPECT_EQ(state.CutoutMaxX[3], 20);
}

TEST_F(Cutouts, NumbersOfDataFilesAreBounded) {
    Play(u"PICPBDATA(63,\"cut.dat\")\r\n");
    EXPECT_EQ(state.PicPbType, 0);
    Play(u"PICPBDATA(62,\"cut.dat\")\r\n");
    EXPECT_EQ(state.PicPbType, 999);
    EXPECT_EQ(state.CutoutDataFile[62], u"C:\\show\\CUT.DAT");
    Play(u"PICPBDATA(-1,\"cut.dat\")\r\n");
    EXPECT_EQ(state.PicPbType, 999) << "only the table has no such row";
    Play(u"PICPBDATA(99999,\"cut.dat\")\r\nPICPBDATA\r\nPICPBDATA(\r\n");
    EXPECT_EQ(state.CutoutDataFile[0], u"");
}

TEST_F(Cutouts, ALineThatShowsCountsAsText) {
    macro::Run run(app);
    macro::SetLine(run, u"PICPB1(0,\"STAR.BMP\",\"\")");
    macro::ShowCutout(run, 0);
    EXPECT_EQ(run.MacroLine, u"\n");
    macro::SetLine(run, u"PICPB1(0,\"\",\"\")");
    macro::ShowCutout(run, 0);
    EXPECT_EQ(run.MacroLine, u"");
    macro::SetLine(run, u"PICPB63(0,\"STAR.BMP\",\"\")");
    macro::ShowCutout(run, 0);
    EXPECT_EQ(run.MacroLineUpper, u"");
}

TEST_F(Cutouts, TheFullScreenTakesTheKeyboard) {
    int focused = 0;
    screen.P2.SetFocus.Anew() = [&] { ++focused; };
    Play(u"PICPB1(0,\"star.bmp\",\"\")");
    EXPECT_EQ(focused, 0);
    GoFullScreen();
    Play(u"PICPB1(0,\"star.bmp\",\"\")\r\nPICPB1(0,\"\",\"\")");
    EXPECT_EQ(focused, 1);
}

TEST_F(Cutouts, TheNextSlideFindsNothingOfThem) {
    GoFullScreen();
    PutPoints(u"C:\\show\\cut.dat", "5,4,20,4,20,15");
    Play(
        u"PICPB0(0,\"star.bmp\",\"\")\r\nCurrentX=200\r\nPICPBDATA(62,\"cut.dat\")\r\n"
        u"PICPB62(0,\"moon.bmp\",\"a.txt\")");
    state.MenuJump[2] = state.MenuActive[2] = 1;
    const int pumps = fake.loop.pumps;
    macro::ClearMacroObjects(app);
    EXPECT_EQ(fake.loop.pumps, pumps);
    // The whole rectangle of a polygon too.
    ExpectRestored({{39, 29, 32, 22}, {239, 29, 12, 14}});
    for (const size_t i : {size_t{0}, size_t{62}}) {
        EXPECT_EQ(state.CutoutActive[i], 0);
        EXPECT_EQ(state.CutoutType[i], 0);
        EXPECT_EQ(state.CutoutAction[i], u"");
        EXPECT_EQ(screen.Picture1(static_cast<int>(i)).Picture(), nullptr);
        EXPECT_EQ(screen.Picture1(static_cast<int>(i)).WindowRgn(), nullptr);
        EXPECT_FALSE(form1.Picture2(static_cast<int>(i)).Visible);
    }
    EXPECT_EQ(state.MenuActive[2], 0);
    EXPECT_EQ(fake.trace.Of("cutout").size(), 4u);
    macro::ClearMacroObjects(app);
    EXPECT_EQ(fake.trace.Of("cutout").size(), 4u) << "told once";
}

TEST_F(Cutouts, TheJumpExitRestoresMenusAndPiecesOneByOne) {
    GoFullScreen();
    screen.menu2.Width = 80 * 15;
    screen.menu2.Height = 30 * 15;
    std::vector<size_t> standing;  // pieces that stand at each pump
    fake.loop.onPump = [&] {
        standing.push_back(static_cast<size_t>(state.CutoutActive[0] + state.CutoutActive[1]));
    };
    Play(
        u"PICPBTYPE=1\r\nPICPB0(0,\"star.bmp\",\"\")\r\nCurrentX=100\r\nPICPB1(0,\"moon.bmp\",\"\")"
        u"\r\n"
        u"CurrentX=300\r\nMenu2(1,\"x\")\r\nSkip=1\r\n");
    EXPECT_EQ(state.MacroEndShow, 1);
    EXPECT_EQ(state.PicPbType, 0);
    ExpectRestored({{39, 29, 32, 22}, {139, 29, 12, 14}, {340, 30, 80, 30}});
    EXPECT_EQ(std::count(standing.begin(), standing.end(), 1u) > 0, true) << "one by one";
    EXPECT_EQ(state.MenuActive[2], 0);
    EXPECT_EQ(state.MenuJump[2], 0);
}

}  // namespace

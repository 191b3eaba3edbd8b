// How a macro file is read: lines, words, waits, loops, the ways in which a run ends.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "macro/keywords.h"
#include "macro_support.h"
#include "model/windows/main_window.h"

namespace {

using macro_tests::MacroShow;
using testing::ElementsAre;
using testing::IsEmpty;

struct Reader : testing::Test, MacroShow {};

TEST_F(Reader, RunsOnlyWithMacrosOnAndNoAbort) {
    state.TextMacroFlag = 1;
    Play(u"CurrentX=5\r\n");
    EXPECT_THAT(Words(), IsEmpty());
    state.TextMacroFlag = 0;
    state.ShowAbort = 1;
    Play(u"CurrentX=5\r\n");
    EXPECT_THAT(Words(), IsEmpty());
    state.ShowAbort = 0;
    Play(u"CurrentX=5\r\n");
    EXPECT_THAT(Words(), ElementsAre("1 CURRENTX"));
}

TEST_F(Reader, ResetsForEverySlideEvenWithoutAFile) {
    for (auto flag : {&model::ShowState::MacroButtonsShown, &model::ShowState::MacroJumpChosen,
                      &model::ShowState::MacroNextPressed, &model::ShowState::MacroBackPressed,
                      &model::ShowState::OverPicMode, &model::ShowState::PicPbType}) {
        state.*flag = 1;
    }
    state.MenuJump[3] = 7;
    GoFullScreen();
    macro::RunTextMacro(app);
    for (auto flag : {&model::ShowState::MacroButtonsShown, &model::ShowState::MacroJumpChosen,
                      &model::ShowState::MacroNextPressed, &model::ShowState::MacroBackPressed,
                      &model::ShowState::OverPicMode, &model::ShowState::PicPbType}) {
        EXPECT_EQ(state.*flag, 0);
    }
    EXPECT_EQ(state.MenuJump[3], 0);
    EXPECT_EQ(state.TextOriginX, 40);
    EXPECT_EQ(state.TextOriginY, 30);
    for (const platform::Canvas* canvas : {&screen.P2.canvas, &form1.Picture1.canvas}) {
        EXPECT_EQ(canvas->font.name, u"ＭＳ ゴシック");
        EXPECT_EQ(canvas->font.sizePoints, 20);
        EXPECT_EQ(canvas->color, 0xFFFFFFu);
        EXPECT_FALSE(canvas->font.bold || canvas->font.italic || canvas->font.underline);
    }
    EXPECT_EQ(screen.P2.canvas.penX, 40);
    EXPECT_EQ(screen.P2.canvas.penY, 30);
    EXPECT_EQ(form1.Picture1.canvas.penX, 0);
    EXPECT_EQ(form1.Picture1.canvas.penY, 0);
}

TEST_F(Reader, OriginOfTheScreenIsItsCorner) {
    GoFullScreen();
    state.TextOriginScreen = 1;
    macro::RunTextMacro(app);
    EXPECT_EQ(state.TextOriginX, 0);
    EXPECT_EQ(screen.P2.canvas.penY, 0);
}

TEST_F(Reader, FileStandsBesideThePicture) {
    EXPECT_EQ(macro::MacroFile(app), u"C:\\show\\p1.txt");
    state.SlideList.Set(1, u"C:\\show\\photo.jpeg");
    EXPECT_EQ(macro::MacroFile(app), u"C:\\show\\photo..txt")
        << "four characters, whatever they are";
    state.SlideList.Set(1, u"abc");
    EXPECT_EQ(macro::MacroFile(app), u"");
    state.LinkedFolderFlag = 1;
    state.LinkedFolder = u"D:\\texts";
    state.CurrentName = u"p1.bmp";
    EXPECT_EQ(macro::MacroFile(app), u"D:\\texts\\p1.txt");
}

TEST_F(Reader, WordsNeedNoSeparatorAndIgnoreCase) {
    Play(u"currentxyz=7\r\n CurrentX=9\r\nTABLET\r\n");
    EXPECT_THAT(Words(), ElementsAre("1 CURRENTX", "3 TAB"));
    EXPECT_EQ(form1.Picture1.canvas.penX, 7);
}

TEST_F(Reader, LongerWordsComeBeforeTheirBeginnings) {
    Play(u"EndLoop\r\nDelKoukaSP=1\r\nKoukaSP=1\r\nDelKouka=1\r\nPicPBType=1\r\nEndTime=700\r\n");
    EXPECT_THAT(Words(), ElementsAre("1 ENDLOOP", "2 DELKOUKASP", "3 KOUKASP", "4 DELKOUKA",
                                     "5 PICPBTYPE", "6 ENDTIME"));
}

TEST_F(Reader, NumbersAreFiveCharactersLong) {
    Play(u"CurrentX=123456\r\n");
    EXPECT_EQ(form1.Picture1.canvas.penX, 12345);
    Play(u"CurrentX=8            //left\r\n");
    EXPECT_EQ(form1.Picture1.canvas.penX, 8);
    Play(u"CurrentX=9//x\r\n");
    EXPECT_EQ(form1.Picture1.canvas.penX, 9);
    Play(u"CurrentX=&H10\r\n");
    EXPECT_EQ(form1.Picture1.canvas.penX, 16);
    Play(u"CurrentX\r\n");
    EXPECT_EQ(form1.Picture1.canvas.penX, 0);
    Play(u"FontUnderLine=1   //[下線]\r\n");
    EXPECT_TRUE(form1.Picture1.canvas.font.underline);
}

TEST_F(Reader, DelayTakesThreeDecimalsOfItsFiveCharacters) {
    Play(u"Delay=0.12345\r\n[テキスト]\r\nx");
    EXPECT_EQ(form1.Timer3.Interval(), 123);
}

TEST_F(Reader, PenGoesToTheMarginAfterEveryLine) {
    form1.Picture1.canvas.penX = 99;
    Play(u"CurrentX=20\r\nnothing\r\n");
    EXPECT_EQ(form1.Picture1.canvas.penX, 20);
    GoFullScreen();
    Play(u"CurrentX=20\r\n");
    EXPECT_EQ(screen.P2.canvas.penX, 60);
    EXPECT_EQ(form1.Picture1.canvas.penX, 20);
}

TEST_F(Reader, TextBeginsAfterItsMark) {
    GoFullScreen();
    screen.P2.canvas.Fill(0x123456);
    Play(u"before\r\n[テキスト]  //text\r\nafter\r\n");
    EXPECT_THAT(Words(), ElementsAre("2 [テキスト]"));
    EXPECT_EQ(screen.P3.canvas.Point(799, 599), 0x123456u);
    ASSERT_FALSE(fake.textRenderer.drawn.empty());
    for (const auto& line : fake.textRenderer.drawn) {
        EXPECT_TRUE(line.text.starts_with(u"after"));
    }
}

TEST_F(Reader, BackgroundIsTheCleanPictureFromTheFirstLineOn) {
    GoFullScreen();
    screen.P2.canvas.Fill(0x123456);
    screen.P3.canvas.Fill(0x999999);  // of an earlier slide
    screen.P4.canvas.Fill(0x445566);
    Play(u"CurrentX=1\r\n");
    EXPECT_EQ(screen.P3.canvas.Point(0, 0), 0x445566u);
    EXPECT_EQ(screen.P3.canvas.Point(799, 599), 0x445566u);
}

TEST_F(Reader, FullScreenBackgroundIsKeptOnlyInFullScreen) {
    screen.P2.canvas.Fill(0x123456);
    Play(u"[テキスト]\r\n");
    EXPECT_EQ(screen.P3.canvas.Point(0, 0), 0u);
}

TEST_F(Reader, LineWithoutEndIsReadWithItsLastCharacter) {
    Play(u"CurrentY=4\r\nCurrentX=37");
    EXPECT_EQ(form1.Picture1.canvas.penX, 37);
}

TEST_F(Reader, UnixLinesWork) {
    Play(u"CurrentX=3\nCurrentY=4\n");
    EXPECT_EQ(form1.Picture1.canvas.penX, 3);
    EXPECT_EQ(form1.Picture1.canvas.penY, 4);
}

TEST_F(Reader, EmptyFileEndsAtOnce) {
    Play(u"");
    EXPECT_EQ(Now(), 0);
    EXPECT_THAT(Words(), IsEmpty());
}

TEST_F(Reader, StopsWhenTheShowStops) {
    fake.loop.onPump = [this] { state.StopRequest = 1; };
    Play(u"CurrentX=1\r\nCurrentX=2\r\n");
    EXPECT_THAT(Words(), IsEmpty());
    fake.loop.onPump = nullptr;
    state.StopRequest = 0;
    state.FullScreenClosed = 1;
    Play(u"CurrentX=1\r\n");
    EXPECT_THAT(Words(), IsEmpty());
}

TEST_F(Reader, NumberBeyondSixteenBitsEndsThePartBeforeTheText) {
    Play(u"FontItalic=99999\r\nCurrentX=5\r\n");
    EXPECT_THAT(Words(), ElementsAre("1 FONTITALIC"));
    EXPECT_EQ(state.MacroEndShow, 0);
}

TEST_F(Reader, NumberBeyondSixteenBitsCostsOneLineOfTheText) {
    Play(u"[テキスト]\r\nFontItalic=99999\r\nCurrentX=5\r\n");
    EXPECT_THAT(Words(), ElementsAre("1 [テキスト]", "2 FONTITALIC", "3 CURRENTX"));
    EXPECT_EQ(form1.Picture1.canvas.penY, 40) << "only the second of the two moves the pen down";
}

// Words and waits.

TEST_F(Reader, SleepWaitsInPassesOfTwentyMilliseconds) {
    Play(u"Sleep=0.5\r\n");
    EXPECT_EQ(Now(), 500);
    Play(u"Sleep=0\r\nSleep=61\r\nEndTime=601\r\nDelay=61\r\n");
    EXPECT_EQ(Now(), 500);
    EXPECT_EQ(state.MacroEndShow, 0);
}

TEST_F(Reader, SleepGoesOnOverMidnight) {
    fake.loop.start = platform::FromCalendar({2026, 1, 1, 23, 59, 59});
    Play(u"Sleep=3\r\n");
    EXPECT_NEAR(Now(), 3000, 20);
}

TEST_F(Reader, SleepEndsAtAChosenJump) {
    fake.loop.At(100, [this] {
        state.SlideIndex = 2;
        state.MacroJumpChosen = 1;
    });
    Play(u"Sleep=10\r\nCurrentX=5\r\n");
    EXPECT_EQ(Now(), 120);
    EXPECT_EQ(state.MacroEndShow, 1);
    EXPECT_EQ(form1.Timer1.Interval(), 100);
    EXPECT_THAT(Words(), ElementsAre("1 SLEEP"));
}

TEST_F(Reader, SleepEndsWithTheFullScreen) {
    state.MacroButtonsShown = 1;
    fake.loop.At(100, [this] {
        state.FullScreenClosed = 1;
        state.MacroJumpChosen = 1;
    });
    Play(u"Sleep=10\r\n");
    EXPECT_EQ(Now(), 120);
    EXPECT_EQ(state.MacroButtonsShown, 0);
    EXPECT_EQ(state.MacroJumpChosen, 0);
    EXPECT_EQ(state.MacroEndShow, 0);
}

TEST_F(Reader, EndTimeLeavesTheSlideAndMayRunOffTheList) {
    state.SlideIndex = 3;
    fake.PutText(u"C:\\show\\p3.txt", u"EndTime=2\r\nCurrentX=5\r\n");
    macro::RunTextMacro(app);
    EXPECT_EQ(Now(), 2000);
    EXPECT_EQ(state.SlideIndex, 3);
    EXPECT_EQ(state.MacroEndShow, 1);
    EXPECT_EQ(form1.Timer1.Interval(), 100);
}

TEST_F(Reader, SkipPassesOverSlidesUpToTheLast) {
    Play(u"Skip=1\r\n");
    EXPECT_EQ(state.SlideIndex, 2) << "the transport's own step makes it the third";
    EXPECT_EQ(state.MacroEndShow, 1);
    state.SlideIndex = 1;
    Play(u"Skip=50\r\n");
    EXPECT_EQ(state.SlideIndex, 2);
    state.SlideIndex = 1;
    Play(u"Skip=-9\r\n");
    EXPECT_EQ(state.SlideIndex, 0);
    state.SlideIndex = 1;
    state.MacroEndShow = 0;
    Play(u"Skip=0\r\nEnd=0\r\nYesNoPB(0,0)\r\nLock=0\r\nCurrentX=5\r\n");
    EXPECT_EQ(form1.Picture1.canvas.penX, 5);
    EXPECT_EQ(state.MacroEndShow, 0);
    EXPECT_EQ(state.MacroWaitClick, 0);
}

TEST_F(Reader, LoopRunsItsBodyAndBeginsEachRepetitionWithAnEmptyLine) {
    Play(u"Loop=3\r\nMovX=10\r\nEndLoop\r\nMovX=1\r\n");
    EXPECT_EQ(form1.Picture1.canvas.penX, 31);
    Play(u"Loop=1\r\nMovX=10\r\nEndLoop\r\n");
    EXPECT_EQ(form1.Picture1.canvas.penX, 10);
    Play(u"Loop=0\r\nMovX=10\r\nEndLoop\r\n");
    EXPECT_EQ(form1.Picture1.canvas.penX, 10);
    Play(u"EndLoop\r\nMovX=10\r\nEndLoop\r\n");
    EXPECT_EQ(form1.Picture1.canvas.penX, 10);
}

TEST_F(Reader, LoopOfTheTextLeavesABlankLine) {
    Play(u"[テキスト]\r\nLoop=2\r\nab\r\nEndLoop\r\n");
    // A line is 40 pixels high: the words' two lines, two texts, the loop's empty line.
    EXPECT_THAT(Words(), ElementsAre("1 [テキスト]", "2 LOOP", "4 ENDLOOP", "4 ENDLOOP"));
    EXPECT_EQ(form1.Picture1.canvas.penY, 6 * 40);
}

TEST_F(Reader, SecondLoopReplacesTheFirst) {
    Play(u"Loop=5\r\nMovX=1\r\nLoop=2\r\nMovX=10\r\nEndLoop\r\n");
    EXPECT_EQ(form1.Picture1.canvas.penX, 21);
}

TEST_F(Reader, MovingWordsAddToTheirPlaces) {
    Play(u"CurrentX=7\r\nCurrentY=3\r\nMovX=-2\r\nMovY=10.95\r\nMovX=\r\n");
    EXPECT_EQ(form1.Picture1.canvas.penX, 5);
    EXPECT_EQ(form1.Picture1.canvas.penY, 14) << "0.1 is added, then rounded down";
}

TEST_F(Reader, WaitsAtTheEndForAChoice) {
    fake.loop.At(500, [this] { state.MacroButtonsShown = 0; });
    Play(u"MENU6(1,\"x\")\r\n");
    EXPECT_EQ(Now(), 520);
    EXPECT_EQ(state.MacroEndShow, 0);
    fake.loop.After(500, [this] { state.StopRequest = 1; });
    Play(u"Menu1(1,\"x\")\r\n");
    EXPECT_EQ(Now(), 1040);
}

TEST_F(Reader, LockEndAndTheEndOfTheShow) {
    Play(u"Lock=1\r\n");
    EXPECT_EQ(state.MacroWaitClick, 1);
    Play(u"Lock=3\r\nLock=0\r\n");
    EXPECT_EQ(state.MacroWaitClick, 1);
    Play(u"Lock=2\r\n");
    EXPECT_EQ(state.MacroWaitClick, 0);
    Play(u"Lock=1\r\nEnd=1\r\nCurrentX=5\r\n");
    EXPECT_EQ(state.MacroWaitClick, 0);
    EXPECT_EQ(state.ShowAbort, 1);
    EXPECT_EQ(state.MacroEndShow, 1);
    state.ShowAbort = 0;
    EXPECT_THROW(Play(u"End=2\r\n"), platform::ProgramEnd);
}

// Bad input.

TEST_F(Reader, TakesAnyBytes) {
    std::string bytes;
    for (int i = 0; i < 4096; ++i) {
        bytes += static_cast<char>((i * 7919) >> 3);
    }
    fake.files.Put(u"C:\\show\\p1.txt", bytes);
    macro::RunTextMacro(app);
    fake.files.Put(u"C:\\show\\p1.txt", std::string(100000, '\0'));
    macro::RunTextMacro(app);
    fake.files.Put(u"C:\\show\\p1.txt", std::string(1000000, 'x'));
    macro::RunTextMacro(app);
    EXPECT_EQ(Now(), 0);
}

}  // namespace

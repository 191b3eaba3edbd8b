// Clicks on what a macro put on the screen: buttons, menu entries, picture objects.
#include <gtest/gtest.h>

#include "macro/macro.h"
#include "model/windows/control_box.h"
#include "model/windows/main_window.h"
#include "model/windows/video_window.h"
#include "show_support.h"

namespace playback_tests {
namespace {

class MacroClicks : public testing::Test {
protected:
    MacroClicks() {
        show.state.ControlBoxFlag = 0;
        show.state.FullStartConfirm = 1;
        show.form1.Command4.Click();
        show.screen.P2.SetFocus.Anew() = [this] { ++focused; };
        show.windows.slidescreen2.Hide();
        show.sound.played.clear();
        show.state.UserInputSeen = 0;
        show.state.SlideIndex = 2;
        show.state.MacroButtonsShown = 1;
        show.state.MacroDelayWaiting = 1;
    }
    void ExpectUsual() {
        EXPECT_EQ(focused, 1);
        EXPECT_EQ(show.state.UserInputSeen, 1);
        EXPECT_TRUE(show.windows.slidescreen2.Visible);
        EXPECT_TRUE(show.screen.Visible);
    }
    void ExpectJumpTo(int index) {
        EXPECT_EQ(show.state.SlideIndex, index);
        EXPECT_EQ(show.state.MacroButtonsShown, 0);
        EXPECT_EQ(show.state.MacroDelayWaiting, 0);
        EXPECT_EQ(show.state.MacroJumpChosen, 1);
    }
    Show show;
    int focused = 0;
};

TEST_F(MacroClicks, YesAndNoSetTheirFlags) {
    show.screen.Command1.Click();
    EXPECT_EQ(show.state.MacroNextPressed, 1);
    EXPECT_EQ(show.state.MacroBackPressed, 0);
    ExpectUsual();
    show.screen.Command2.Click();
    EXPECT_EQ(show.state.MacroBackPressed, 1);
}

TEST_F(MacroClicks, MenuEntriesJump) {
    show.state.MenuJump[3] = 2;
    show.screen.menu3.Click();
    ExpectJumpTo(3);  // 2 + 2 − 1
    ExpectUsual();
}

TEST_F(MacroClicks, NoJumpGoesBelow0) {
    show.state.MenuJump[5] = -4;
    show.screen.menu5.Click();
    ExpectJumpTo(0);
}

TEST_F(MacroClicks, AnObjectPlaysItsSoundAndJumps) {
    show.state.CutoutAction[62] = u"C:\\pic\\bell.wav";
    show.state.CutoutJump[62] = -1;
    show.screen.Picture1(62).Click();
    ASSERT_EQ(show.sound.played.size(), 1u);
    EXPECT_EQ(show.sound.played[0].first, u"C:\\pic\\bell.wav");
    EXPECT_EQ(show.sound.played[0].second, 3);
    ExpectJumpTo(0);  // 2 − 1 − 1
    ExpectUsual();
}

TEST_F(MacroClicks, AnObjectWithoutJumpStays) {
    show.state.CutoutAction[0] = u"C:\\pic\\bell.txt";
    show.screen.Picture1(0).Click();
    EXPECT_TRUE(show.sound.played.empty());
    EXPECT_EQ(show.state.SlideIndex, 2);
    EXPECT_EQ(show.state.MacroJumpChosen, 0);
    EXPECT_EQ(show.state.MacroButtonsShown, 1);
    ExpectUsual();
}

TEST_F(MacroClicks, AnUnwantedBoxStaysDown) {
    show.state.ControlBoxFlag = 1;
    show.screen.menu1.Click();
    EXPECT_FALSE(show.windows.slidescreen2.Visible);
}

TEST_F(MacroClicks, AnObjectStartsItsProgramForTheDocument) {
    show.state.DocumentPath = u"C:\\show\\a.kvs";
    show.state.CutoutAction[5] = u"  C:\\My Tools\\t.exe ";
    show.state.CutoutAction[6] = u" C:\\t.Exe";
    show.screen.Picture1(5).Click();
    EXPECT_TRUE(show.system.started.empty()) << "the blank after it hides the kind";
    show.screen.Picture1(6).Click();
    ASSERT_EQ(show.system.started.size(), 1u);
    EXPECT_EQ(show.system.started[0].first, u"C:\\t.Exe");
    EXPECT_EQ(show.system.started[0].second, u"C:\\show\\a.kvs");
    EXPECT_EQ(show.state.SlideIndex, 2);
    const auto told = show.trace.Of("shell");
    ASSERT_EQ(told.size(), 1u);
    EXPECT_EQ(told[0].String("command"), u"C:\\t.Exe");
}

TEST_F(MacroClicks, AProgramThatIsNotBesideTheSlideIsLookedForByItsName) {
    show.state.SlideList.Set(show.state.SlideIndex, u"C:\\pic\\a.png");
    show.state.CutoutAction[1] = u"C:\\pic\\gone.exe";
    show.state.CutoutAction[2] = u"C:\\pic\\there.exe";
    show.state.CutoutAction[3] = u"C:\\else\\gone.exe";
    show.files.Put(u"C:\\pic\\there.exe", "x");
    for (const int object : {1, 2, 3}) {
        show.screen.Picture1(object).Click();
    }
    ASSERT_EQ(show.system.started.size(), 3u);
    EXPECT_EQ(show.system.started[0].first, u"gone.exe");
    EXPECT_EQ(show.system.started[1].first, u"C:\\pic\\there.exe");
    EXPECT_EQ(show.system.started[2].first, u"C:\\else\\gone.exe");
    EXPECT_EQ(show.trace.Of("shell")[0].String("command"), u"C:\\pic\\gone.exe");
}

TEST_F(MacroClicks, AnObjectPlaysItsVideoBesideTheShow) {
    show.state.CutoutAction[5] = u"C:\\v\\film.wmv";
    show.state.CutoutJump[5] = 2;
    show.screen.Picture1(5).Click();
    EXPECT_TRUE(show.windows.form24.Visible);
    EXPECT_FALSE(show.windows.form24.Modal);
    EXPECT_EQ(show.video.path, u"C:\\v\\film.wmv");
    EXPECT_EQ(show.windows.form24.WindowsMediaPlayer1.uiMode(), u"none");
    EXPECT_EQ(focused, 2) << "the canvas takes the focus again";
    ExpectJumpTo(3);
    show.loop.Run(2000);
    EXPECT_FALSE(show.windows.form24.Visible);
    EXPECT_TRUE(show.screen.Visible);
}

TEST(WindowMacroClicks, ObjectsOfTheMainWindowDoTheSame) {
    Show show;
    show.state.SlideIndex = 1;
    show.state.CutoutAction[7] = u"C:\\pic\\bell.WAV";
    show.state.CutoutJump[7] = 3;
    show.form1.Picture2(7).Click();
    EXPECT_EQ(show.sound.played.size(), 1u);
    EXPECT_EQ(show.state.SlideIndex, 3);
    EXPECT_EQ(show.state.MacroJumpChosen, 1);
}

TEST(WindowMacroClicks, ObjectsAreForgottenWithTheirSlide) {
    Show show;
    show.state.CutoutAction[7] = u"C:\\pic\\bell.wav";
    show.state.CutoutJump[7] = 3;
    macro::ClearMacroObjects(show.app);
    EXPECT_EQ(show.state.CutoutAction[7], u"");
    EXPECT_EQ(show.state.CutoutJump[7], 0);
}

}  // namespace
}  // namespace playback_tests

// The word that starts a scrolling line.
#include <gtest/gtest.h>

#include "macro/telop.h"
#include "macro_support.h"
#include "model/windows/main_window.h"

namespace {

using macro_tests::MacroShow;

/// Canvases of 640 and 800 pixels; a character is 10 pixels wide.
struct TelopStart : testing::Test, MacroShow {
    TelopStart() {
        form1.Timer4.Tick.Anew() = [this] { macro::ScrollTelopInWindow(app); };
        screen.Timer1.Tick.Anew() = [this] { macro::ScrollTelopOnScreen(app); };
    }
};

TEST_F(TelopStart, BeginsAtTheRightEdgeInTheLookOfTheCanvas) {
    Play(u"FontNo=2\nFontBold=1\nFontItalic=1\nQBColor=12\nCurrentY=70\nTelop(5,25,\"Hello\")\n");
    EXPECT_EQ(form1.Label1.Left(), 640);
    EXPECT_EQ(form1.Label1.Top(), 70);
    EXPECT_EQ(form1.Label1.Width(), 50);
    EXPECT_EQ(form1.Label1.Height(), 40);
    EXPECT_EQ(form1.Label1.Caption(), u"Hello");
    EXPECT_EQ(form1.Label1.FontName(), u"ＭＳ 明朝");
    EXPECT_EQ(form1.Label1.FontSize(), 20);
    EXPECT_TRUE(form1.Label1.FontBold && form1.Label1.FontItalic && form1.Label1.Visible);
    EXPECT_EQ(form1.Label1.ForeColor(), 0x0000FF);
    EXPECT_EQ(form1.Timer4.Interval(), 50);
    EXPECT_TRUE(form1.Timer4.Enabled);
    EXPECT_EQ(state.TelopStep, 25);
    EXPECT_EQ(state.TelopRunning, 0);
    EXPECT_EQ(state.TelopText, u"Hello");
    EXPECT_FALSE(screen.Timer1.Enabled) << "only in the mode in force";
    EXPECT_EQ(screen.Label1.Caption(), u"");
}

TEST_F(TelopStart, RunsAgainAndAgain) {
    Play(u"Telop2(10,100,\"12345\")\n");
    fake.loop.Run(650);
    EXPECT_EQ(form1.Label1.Left(), 40);
    fake.loop.Run(50);
    EXPECT_EQ(form1.Label1.Left(), 640) << "-60, and 50 wide";
    EXPECT_EQ(form1.Label1.Caption(), u"12345");
    EXPECT_TRUE(form1.Timer4.Enabled);
}

TEST_F(TelopStart, InFullScreenItIsTheOtherLabel) {
    GoFullScreen();
    Play(u"CurrentY=70\nTelop(1,1000,\"x\")\n");
    EXPECT_EQ(screen.Label1.Left(), 800);
    EXPECT_EQ(screen.Label1.Top(), 100);
    EXPECT_EQ(screen.Timer1.Interval(), 10);
    EXPECT_EQ(state.TelopStep, 1000);
    EXPECT_FALSE(form1.Timer4.Enabled);
    fake.loop.Run(10);
    EXPECT_EQ(screen.Label1.Left(), 800) << "gone at one stroke, and back";
}

TEST_F(TelopStart, NumbersCanBeLeftOut) {
    Play(u"Telop(\"a\") //b,c)\n");
    EXPECT_EQ(form1.Timer4.Interval(), 1000);
    EXPECT_EQ(state.TelopStep, 100);
    EXPECT_EQ(state.TelopText, u"a");
    Play(u"Telop(7, bc )\n");
    EXPECT_EQ(form1.Timer4.Interval(), 70);
    EXPECT_EQ(state.TelopStep, 100);
    EXPECT_EQ(state.TelopText, u"bc");
    Play(u"Telop(2000,0,\"d,e)\")\r\n");
    EXPECT_EQ(form1.Timer4.Interval(), 10000);
    EXPECT_EQ(state.TelopStep, 1);
    EXPECT_EQ(state.TelopText, u"d,e)");
    Play(u"Telop(\"hello, world\")\n");
    EXPECT_EQ(form1.Timer4.Interval(), 10) << "what stands before a comma is a number";
    EXPECT_EQ(state.TelopText, u"world");
}

TEST_F(TelopStart, ANewTextTakesOverWhenTheOldOneHasGone) {
    Play(u"Telop(10,100,\"one\")\n");
    fake.loop.Run(300);
    Play(u"FontSize=40\nCurrentY=90\nTelop(10,100,\"two\")\n");
    EXPECT_EQ(form1.Label1.Caption(), u"one");
    EXPECT_EQ(form1.Label1.Left(), 340) << "it runs on from where it is";
    EXPECT_EQ(form1.Label1.Top(), 90);
    EXPECT_EQ(form1.Label1.FontSize(), 20);
    fake.loop.Run(400);
    EXPECT_EQ(form1.Label1.Caption(), u"two");
    EXPECT_EQ(form1.Label1.Left(), 640);
}

TEST_F(TelopStart, ATextThatWasLeftStandingTakesTheNewSize) {
    Play(u"Telop(10,100,\"one\")\n");
    form1.Timer4.Enabled = false;
    Play(u"FontSize=40\nTelop(10,100,\"two\")\n");
    EXPECT_EQ(form1.Label1.Caption(), u"one");
    EXPECT_EQ(form1.Label1.Width(), 60);
}

TEST_F(TelopStart, OnceOnlyLinesAreStrungTogetherAndEnd) {
    Play(u"Telop1(10,100,\"abc\")\nTELOP1(10,100,\"DEF\")\n");
    EXPECT_EQ(state.TelopRunning, 1);
    EXPECT_EQ(state.TelopText, u"");
    EXPECT_EQ(form1.Label1.Caption(), u"abcDEF");
    EXPECT_EQ(form1.Label1.Width(), 60);
    fake.loop.Run(700);
    EXPECT_TRUE(form1.Timer4.Enabled) << "-60 and 60 wide: not below 0";
    fake.loop.Run(100);
    EXPECT_FALSE(form1.Timer4.Enabled);
    EXPECT_FALSE(form1.Label1.Visible);
    EXPECT_EQ(form1.Label1.Caption(), u"");
    EXPECT_EQ(state.TelopRunning, 0);
}

TEST_F(TelopStart, WithoutATextEverythingEnds) {
    for (const TextView word : {u"Telop(\"\")", u"Telop1(1,2,\"\")", u"TELOP", u"Telop() // x"}) {
        Play(u"Telop1(10,100,\"abc\")\n");
        screen.Label1.Visible = true;
        screen.Timer1.Enabled = true;
        Play(word);
        EXPECT_EQ(form1.Label1.Caption(), u"") << text::ToUtf8(word);
        EXPECT_FALSE(form1.Label1.Visible || screen.Label1.Visible);
        EXPECT_FALSE(form1.Timer4.Enabled || screen.Timer1.Enabled);
        EXPECT_EQ(state.TelopRunning, 0);
        EXPECT_EQ(state.TelopText, u"");
    }
}

TEST_F(TelopStart, ALoopCannotStringALineTogetherWithoutEnd) {
    Play(u"Loop=3000\nTelop1(10,100,\"1234567890\")\nEndLoop\n");
    EXPECT_EQ(form1.Label1.Caption().size(), 4096u);
}

}  // namespace

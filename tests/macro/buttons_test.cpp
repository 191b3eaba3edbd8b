// Yes and No, menu buttons, and what a press does.
#include <gtest/gtest.h>

#include "macro_support.h"
#include "model/controls.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "playback/macro_clicks.h"

namespace {

using macro_tests::MacroShow;

struct Buttons : testing::Test, MacroShow {
    Buttons() {
        playback::AttachWindowMacroClicks(app);
        for (model::Button* button : {&form1.Command8, &screen.Command1}) {
            button->Width = 80 * 15;
            button->Height = 30 * 15;
        }
        screen.Command2.Width = 80 * 15;
        screen.Command2.Height = 30 * 15;
    }
};

TEST_F(Buttons, YesAndNoStandSideBySideOnBothWindows) {
    GoFullScreen();
    app.windows.ShowCursor(false);
    state.MacroCursorHidden = 1;
    bool seen = false;
    fake.loop.At(60, [&] {
        seen = true;
        EXPECT_EQ(form1.Command8.Left(), 15);
        EXPECT_EQ(form1.Command8.Top(), 20);
        EXPECT_EQ(form1.Command9.Left(), 15 + 80 + 4);
        EXPECT_EQ(screen.Command1.Left(), 55);
        EXPECT_EQ(screen.Command1.Top(), 50);
        EXPECT_EQ(screen.Command2.Left(), 55 + 80 + 4);
        EXPECT_TRUE(form1.Command8.Visible && form1.Command9.Visible);
        EXPECT_TRUE(screen.Command1.Visible && screen.Command2.Visible);
        EXPECT_EQ(state.MacroCursorHidden, 0);
        state.MacroBackPressed = 1;
    });
    screen.P3.canvas.Fill(0x999999);  // of an earlier slide
    screen.P4.canvas.Fill(0x445566);
    Play(u"CurrentX=15\r\nCurrentY=20\r\nYesNoPB(2,0)\r\nCurrentX=33\r\n");
    EXPECT_TRUE(seen);
    EXPECT_EQ(form1.Picture1.canvas.penX, 33) << "No with 0 goes on";
    EXPECT_FALSE(form1.Command8.Visible || screen.Command2.Visible);
    EXPECT_EQ(state.MacroBackPressed, 0);
    EXPECT_EQ(screen.P2.canvas.Point(55, 50), 0x445566u) << "the background came back";
    EXPECT_EQ(screen.P2.canvas.Point(55 + 80 + 4 + 79, 79), 0x445566u);
    EXPECT_EQ(screen.P2.canvas.Point(55 + 80 + 1, 50), 0u) << "not between the buttons";
}

struct Press {
    const char16_t* macro;
    bool yes;
    int from, to;
};

TEST_F(Buttons, PressGoesByItsNumberOfSlides) {
    for (const Press& press :
         {Press{u"YesNoPB(1,0)\r\n", true, 1, 1},  // the next slide
          Press{u"YesNoPB(-1,1)\r\n", true, 1, 0}, Press{u"YesNoPB(-1,1)\r\n", true, 3, 1},
          Press{u"YesNoPB(-1,2)\r\n", false, 1, 2}, Press{u"YesNoPB(9,9)\r\n", false, 1, 2}}) {
        state.SlideIndex = static_cast<int16_t>(press.from);
        fake.PutText(u"C:\\show\\p" + Text(1, char16_t(u'0' + press.from)) + u".txt", press.macro);
        fake.loop.After(50, [&] { (press.yes ? form1.Command8 : form1.Command9).Click(); });
        state.MacroEndShow = 0;
        macro::RunTextMacro(app);
        EXPECT_EQ(state.SlideIndex, press.to);
        EXPECT_EQ(state.MacroEndShow, 1);
        EXPECT_FALSE(form1.Command8.Visible);
    }
}

TEST_F(Buttons, MenuChosenWhileYesAndNoStand) {
    fake.loop.At(50, [&] { form1.menu2.Click(); });
    Play(u"Menu2(2,\"x\")\r\nYesNoPB(1,1)\r\n");
    EXPECT_EQ(state.SlideIndex, 2);
    EXPECT_EQ(state.MacroNextPressed, 2);
    EXPECT_EQ(state.MacroBackPressed, 2);
    EXPECT_EQ(state.MacroEndShow, 1);
}

TEST(MacroButtons, HaveTheirSizesFromTheBeginning) {
    MacroShow show;
    bool seen = false;
    show.fake.loop.At(50, [&] {
        seen = true;
        EXPECT_EQ(show.form1.Command9.Left(), 80 + 4);
        EXPECT_EQ(show.screen.Command2.Left(), 80 + 4);
        for (const model::Button* button :
             {&show.form1.Command8, &show.screen.Command1, &show.form1.menu1, &show.screen.menu1}) {
            EXPECT_EQ(button->Width(), 80 * 15);
            EXPECT_EQ(button->Height(), 28 * 15);
        }
        // 20 letters of 4.5 pixels in the test, and the margin.
        EXPECT_EQ(show.form1.menu2.Width(), (90 + 40) * 15);
        EXPECT_EQ(show.screen.menu2.Width(), (90 + 40) * 15);
        EXPECT_EQ(show.screen.menu3.Width(), 800 * 15);
        show.state.StopRequest = 1;
    });
    show.Play(u"Menu1(1,\"a\")\r\nMenu2(1,\"12345678901234567890\")\r\nMenu3(1,\"" +
              Text(1000, u'x') + u"\")\r\nYesNoPB(1,1)\r\n");
    EXPECT_TRUE(seen);
}

TEST_F(Buttons, StopLeavesTheWait) {
    fake.loop.At(50, [&] { state.StopRequest = 1; });
    Play(u"YesNoPB(1,1)\r\nCurrentX=9\r\n");
    EXPECT_EQ(Now(), 80);
    EXPECT_FALSE(form1.Command8.Visible);
    EXPECT_EQ(form1.Picture1.canvas.penX, 0);
    EXPECT_EQ(state.MacroEndShow, 0);
}

TEST_F(Buttons, ClosedFullScreenForgetsWhatWasChosen) {
    fake.loop.At(50, [&] { state.FullScreenClosed = 1; });
    Play(u"Menu1(1,\"x\")\r\nYesNoPB(1,1)\r\n");
    EXPECT_EQ(state.MacroButtonsShown, 0);
    EXPECT_EQ(state.MacroEndShow, 0);
}

TEST_F(Buttons, MenusWaitAtTheEndAndJump) {
    bool seen = false;
    fake.loop.At(1000, [&] {
        seen = true;
        EXPECT_EQ(form1.menu1.Caption(), u"スキップ");
        EXPECT_EQ(form1.menu1.Left(), 10);
        EXPECT_EQ(form1.menu1.Top(), 5);
        EXPECT_EQ(screen.menu1.Left(), 10);
        EXPECT_EQ(form1.menu5.Caption(), u"二つ先");
        EXPECT_TRUE(form1.menu5.Visible);
        EXPECT_FALSE(form1.menu2.Visible);
        form1.menu5.Click();
    });
    Play(u"CurrentX=10\r\nCurrentY=5\r\nMenu1(1,\"スキップ\")  //x\r\nMENU5( 2 , \"二つ先\" )\r\n");
    EXPECT_TRUE(seen);
    EXPECT_EQ(state.SlideIndex, 2);
    EXPECT_EQ(state.MacroEndShow, 1);
    EXPECT_FALSE(form1.menu5.Visible);
    EXPECT_EQ(state.MacroButtonsShown, 0);
}

TEST_F(Buttons, CaptionEndsAtItsQuoteWhateverACommentHolds) {
    const struct {
        const char16_t* line;
        const char16_t* caption;
    } rows[] = {
        {u"Menu1(1,\"スキップ\")  //メニュー番号(画面移動数)", u"スキップ"},
        {u"Menu1(1, \"a(b)\" ) (x)", u"a(b)"},
        {u"Menu1(1,\"\")  //x)", u""},
        {u"Menu1(1,\"a)b\"", u"a)b"},  // its bracket is missing
        // Without a closing quote: up to the last ')', less the last character.
        {u"Menu1(1,\"ab)", u"a"},
        {u"Menu1(1,ab)", u"ab"},
    };
    for (const auto& row : rows) {
        fake.loop.After(100, [&] {
            EXPECT_EQ(form1.menu1.Caption(), row.caption);
            form1.menu1.Click();
        });
        Play(Text(row.line) + u"\r\n");
    }
}

TEST_F(Buttons, MenuJumpOfZeroShowsTheSlideAgainAndFarJumpsLandOnTheLast) {
    fake.loop.At(100, [&] { form1.menu1.Click(); });
    Play(u"Menu1(0,\"again\")\r\n");
    EXPECT_EQ(state.SlideIndex, 0);
    state.SlideIndex = 1;
    fake.loop.After(100, [&] { form1.menu1.Click(); });
    Play(u"Menu1(99,\"far\")\r\n");
    EXPECT_EQ(state.SlideIndex, 2);
}

TEST_F(Buttons, SecondMenuOfANumberMovesAndRenamesIt) {
    GoFullScreen();
    screen.menu1.Width = 20 * 15;
    screen.menu1.Height = 10 * 15;
    auto back = std::make_shared<platform::Bitmap>(300, 300, 0xFF112233u);
    app.windows.form4.Picture1.SetPicture(back);
    state.EffectDc = back;
    fake.loop.At(100, [&] {
        EXPECT_EQ(form1.menu1.Caption(), u"b");
        EXPECT_EQ(screen.menu1.Left(), 40 + 50);
        EXPECT_EQ(screen.P2.canvas.Point(40, 30), platform::ToColor(0xFF112233u));
        state.StopRequest = 1;
    });
    Play(u"Menu1(1,\"a\")\r\nCurrentX=50\r\nMenu1(1,\"b\")\r\n");
    EXPECT_EQ(Now(), 120);
}

TEST_F(Buttons, NothingIsShownWhenTheShowStopsMeanwhile) {
    GoFullScreen();
    screen.menu1.Width = 20 * 15;
    state.EffectDc = std::make_shared<platform::Bitmap>(300, 300, 0xFF112233u);
    fake.PutPicture(u"C:\\show\\a.png", 10, 10);
    for (const char16_t* again : {u"Menu1(1,\"b\")\r\n", u"PicPB01(1,\"a.png\",\"\")\r\n"}) {
        state.StopRequest = 0;
        fake.loop.onPump = [&] {
            const bool shown = screen.menu1.Visible && screen.Picture1(1).Visible;
            if (state.MenuActive[1] == 1 && state.CutoutActive[1] == 1 && !shown) {
                state.StopRequest = 1;
                macro::ClearMacroObjects(app);
            }
        };
        Play(Text(u"PicPB01(1,\"a.png\",\"\")\r\nMenu1(1,\"a\")\r\n") + again);
        EXPECT_EQ(state.StopRequest, 1);
        EXPECT_FALSE(form1.menu1.Visible || screen.menu1.Visible);
        EXPECT_FALSE(form1.Picture2(1).Visible || screen.Picture1(1).Visible);
    }
}

TEST_F(Buttons, MenusOfTheTextStackBelowEachOther) {
    fake.loop.At(100, [&] {
        EXPECT_EQ(form1.menu1.Top(), 0);
        EXPECT_EQ(form1.menu2.Top(), 40 + 5) << "a line and the line space";
        state.StopRequest = 1;
    });
    Play(u"LineSpace=5\r\n[テキスト]\r\nMenu1(1,\"a\")\r\nMenu2(1,\"b\")\r\n");
    EXPECT_EQ(Now(), 120);
}

TEST_F(Buttons, SixthMenuShowsNothingAndHoldsTheSlide) {
    fake.loop.At(3000, [&] { state.StopRequest = 1; });
    Play(u"MENU6(1,\"x\")\r\n");
    EXPECT_EQ(Now(), 3020);
    for (model::Button* button : {&form1.menu1, &form1.menu5}) {
        EXPECT_FALSE(button->Visible);
    }
}

}  // namespace

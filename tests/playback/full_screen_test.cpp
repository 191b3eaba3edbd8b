// The full-screen window: where it comes up, how a show starts in it, what it takes from the user,
// and what is left when it goes.
#include <gtest/gtest.h>

#include "full_screen_support.h"
#include "model/controls.h"
#include "model/picture_controls.h"
#include "model/windows/control_box.h"
#include "model/windows/link_list.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_list.h"

namespace playback_tests {
namespace {

constexpr int kEscape = 27;

TEST(FullScreenButton, IsRefusedWhileAStepOrALockIsOn) {
    for (int16_t model::ShowState::*guard :
         {&model::ShowState::StepBusy, &model::ShowState::MacroWaitClick}) {
        Show show;
        show.state.*guard = 1;
        show.form1.Command4.Click();
        EXPECT_FALSE(show.screen.Loaded);
        EXPECT_TRUE(show.dialogs.messages.empty());
    }
}

TEST(FullScreenButton, WaitsForTheSlideList) {
    Show show;
    show.state.SlideListWindowOpen = 1;
    show.form1.Command4.Click();
    ASSERT_EQ(show.dialogs.messages.size(), 1u);
    EXPECT_EQ(show.dialogs.messages[0].text, u"ファイル選択を終了させてから行って下さい。");
    EXPECT_EQ(show.dialogs.messages[0].title, u"ファイル選択");
    EXPECT_EQ(show.dialogs.messages[0].flags, 48);
    EXPECT_FALSE(show.screen.Loaded);
}

TEST(FullScreenButton, CoversTheMonitorOfTheMainWindow) {
    Show show;
    UseSecondMonitor(show);
    StartInScreen(show);
    EXPECT_EQ(show.state.MonitorIndex, 1);
    EXPECT_EQ(show.screen.Left, 28800);  // 1920 × 15
    EXPECT_EQ(show.screen.Top, 0);
    EXPECT_EQ(show.screen.Width, 19200);
    EXPECT_EQ(show.screen.Height, 15360);
    for (const model::PictureBox* layer : {&show.screen.P2, &show.screen.P3, &show.screen.P4}) {
        EXPECT_EQ(layer->canvas.Width(), 1280);
        EXPECT_EQ(layer->canvas.Height(), 1024);
    }
    EXPECT_EQ(show.state.FullScreenActive, 1);
    EXPECT_FALSE(show.form1.Visible);
    EXPECT_FALSE(show.form1.Picture1.AutoRedraw);
    EXPECT_TRUE(show.FileEntriesHidden());
    EXPECT_TRUE(show.MenusOff());
}

TEST(FullScreenStart, AsksBeforeTheFirstSlide) {
    Show show;
    Numbers shownWhileAsked{-1};
    show.dialogs.whileOpen = [&](const auto&) { shownWhileAsked = show.Shown(); };
    show.form1.Command4.Click();
    ASSERT_EQ(show.dialogs.messages.size(), 1u);
    EXPECT_EQ(show.dialogs.messages[0].text, u"スライド画面全体表示スタート");
    EXPECT_EQ(show.dialogs.messages[0].title, u"パラピコ");
    EXPECT_EQ(show.dialogs.messages[0].flags, 0);
    EXPECT_TRUE(shownWhileAsked.empty());
    EXPECT_EQ(show.Shown(), Numbers{1});
    EXPECT_EQ(show.state.SlideIndex, 2);
    EXPECT_EQ(show.state.ShowRunning, 1);
    EXPECT_EQ(show.Buttons(), "PXF");
    EXPECT_TRUE(show.form1.Timer1.Enabled);
    EXPECT_EQ(show.form1.Timer1.Interval, 3000);
    show.loop.Run(3000);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
}

TEST(FullScreenStart, BeginsAtARequestedSlideWithoutAQuestion) {
    Show show;
    show.state.JumpRequested = 1;
    show.state.JumpTarget = 1;
    show.state.StartOption = 1;  // does not count then
    show.state.ResumeIndex = 2;
    show.form1.Command4.Click();
    EXPECT_TRUE(show.dialogs.messages.empty());
    EXPECT_EQ(show.Shown(), Numbers{2});
    EXPECT_EQ(show.state.JumpRequested, 0);
}

TEST(FullScreenStart, GoesOnAfterTheSlideLastShown) {
    struct {
        int16_t resume;
        int slide;
    } const cases[] = {{2, 3}, {3, 1}};  // after the last slide: from the top
    for (const auto& one : cases) {
        Show show;
        show.state.StartOption = 1;
        show.state.ResumeIndex = one.resume;
        show.state.PreviousPictureOnScreen = 1;
        StartInScreen(show);
        EXPECT_EQ(show.Shown(), Numbers{one.slide});
    }
}

TEST(FullScreenStart, ShowsTheBoxBeforeTheFirstPicture) {
    Show show;
    show.state.ControlBoxFlag = 0;
    show.Break(1);
    model::Slidescreen2& box = show.windows.slidescreen2;
    std::string buttons;
    Text caption;
    show.dialogs.whileOpen = [&](const auto&) {
        caption = box.Caption();
        for (const model::Button* button :
             {&box.Command1, &box.Command2, &box.Command3, &box.Command4, &box.Command5}) {
            buttons += button->Enabled ? '1' : '0';
        }
        EXPECT_TRUE(box.Visible);
    };
    StartInScreen(show);
    EXPECT_EQ(caption, u"START");
    EXPECT_EQ(buttons, "10100") << "close and PAUSE";
}

TEST(FullScreenStart, NoBoxComesUpOverMacroButtons) {
    for (const bool menu : {true, false}) {
        Show show;
        show.state.ControlBoxFlag = 0;
        show.state.ShowRunning = 1;  // a show is taken over: what macros placed stands
        show.state.SlideIndex = 2;
        playback::PlaceFullScreen(show.app);
        show.state.MacroButtonsShown = menu ? 1 : 0;
        show.screen.Command1.Visible = !menu;
        show.screen.Show();
        EXPECT_FALSE(show.windows.slidescreen2.Visible) << menu;
    }
}

TEST(FullScreenStart, AFailingFirstSlideTakesTheWindowDown) {
    Show show;
    show.Break(1);
    show.dialogs.answers = {platform::Answer::No};
    StartInScreen(show);
    EXPECT_FALSE(show.screen.Loaded);
    EXPECT_EQ(show.state.ShowAbort, 0);
    EXPECT_EQ(show.state.FullScreenEndMark, 0);
    EXPECT_EQ(show.state.FullScreenClosedByUser, 1);
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_FALSE(show.form1.Timer1.Enabled);
    EXPECT_TRUE(show.form1.Visible);
    EXPECT_EQ(show.Buttons(), "SF");
}

TEST(FullScreenStart, AnEmptyListShowsNothing) {
    Show show(0);
    StartInScreen(show);
    EXPECT_TRUE(show.screen.Visible);
    EXPECT_EQ(show.state.SlideIndex, 0);
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_FALSE(show.form1.Timer1.Enabled);
}

TEST(FullScreenUnload, WithNothingRunningLeavesALivingWindow) {
    for (const int16_t alwaysFull : {0, 1}) {
        Show show(0);
        show.state.AlwaysFullFlag = alwaysFull;
        StartInScreen(show);
        ASSERT_TRUE(show.MenusOff());
        show.screen.KeyDown(27);
        EXPECT_TRUE(show.form1.Visible);
        EXPECT_TRUE(show.MenusOn());
        EXPECT_TRUE(show.FileEntriesShown());
        EXPECT_EQ(show.Buttons(), "") << "nothing to start";
        EXPECT_EQ(show.ToolButtons(), "111");
        EXPECT_EQ(show.state.StartLatch, 0);
        show.AddPicture();
        playback::SetButtons(show.app, playback::Buttons::Idle);
        show.state.AlwaysFullFlag = 1;
        show.Start();
        EXPECT_EQ(show.Shown(), Numbers{1});
    }
}

TEST(FullScreenUnload, TakesTheLockOfAMacroOffWithTheShow) {
    Show show;
    show.state.AlwaysFullFlag = 0;
    StartInScreen(show);
    show.Break(2);
    show.state.MacroWaitClick = 1;
    show.dialogs.answers = {platform::Answer::No};
    show.loop.Run(3000);
    EXPECT_FALSE(show.screen.Loaded);
    EXPECT_EQ(show.state.MacroWaitClick, 0);
    EXPECT_EQ(show.Buttons(), "SF");
}

TEST(FullScreenStart, PauseDuringTheFirstStepHoldsTheShow) {
    Show show;
    show.state.ControlBoxFlag = 0;
    // START has ended what scrolled before; the question comes after that.
    show.state.FullStartConfirm = 0;
    show.dialogs.whileOpen = [&](const auto&) { show.state.TelopRunning = 1; };
    show.loop.At(500, [&] { show.windows.slidescreen2.Command3.Click(); });
    show.form1.Command4.Click();
    EXPECT_TRUE(show.Shown().empty());
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_FALSE(show.form1.Timer1.Enabled);
    EXPECT_TRUE(show.screen.Visible);
}

TEST(FullScreenButton, TakesARunningShowOver) {
    Show show;
    show.Start();
    show.loop.Run(1000);
    show.form1.Command4.Click();
    EXPECT_TRUE(show.dialogs.messages.empty());
    EXPECT_EQ(show.Shown(), Numbers{1}) << "the picture is there already";
    EXPECT_EQ(show.screen.P2.canvas.Point(960, 540), 0x808080u);
    EXPECT_EQ(show.state.SlideIndex, 2);
    EXPECT_EQ(show.state.PreviousPictureOnScreen, 1);
    EXPECT_EQ(show.state.EffectDcValid, 1);
    EXPECT_EQ(show.state.StopRequest, 0);
    EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
    show.loop.Run(2999);
    EXPECT_EQ(show.Shown(), Numbers{1}) << "the interval starts anew";
    show.loop.Run(1);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
}

TEST(FullScreenButton, WithoutSizeAdjustmentNoOlderPictureComesBack) {
    Show show;
    show.files.Put(Show::PathOf(2), "PIC 100 50 00FF00");
    show.Start();
    show.state.SizeAdjust = 2;  // nothing is kept for another fit
    show.loop.Run(3500);
    show.form1.Command4.Click();
    EXPECT_EQ(show.screen.P2.canvas.Point(960, 540), 0x00FF00u);
    EXPECT_EQ(show.windows.form4.Picture1.ScaleWidth(), 100);
}

TEST(FullScreenButton, ThePictureTakenOverStaysUnderTheNextOfAnOverlap) {
    Show show;
    show.files.Put(Show::PathOf(1), "PIC 400 300 FF0000");
    show.files.Put(Show::PathOf(2), "PIC 100 50 00FF00");
    show.state.OverlayMode = 1;
    show.state.TextOriginScreen = 1;  // the canvas comes back from its copy without text
    show.state.TextMacroFlag = 0;
    show.Start();
    show.loop.Run(1000);
    show.form1.Command4.Click();
    show.loop.Run(3000);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
    EXPECT_EQ(show.screen.P2.canvas.Point(960, 540), 0x00FF00u);
    EXPECT_EQ(show.screen.P2.canvas.Point(960 - 190, 540), 0x0000FFu) << "red beside it";
}

TEST(FullScreenButton, APausedShowStaysPaused) {
    Show show;
    show.state.ControlBoxFlag = 0;
    show.Start();
    show.loop.Run(3500);
    show.Pause();
    show.form1.Command4.Click();
    show.loop.Run(10000);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
    EXPECT_EQ(show.state.SlideIndex, 2);
    const model::Slidescreen2& box = show.windows.slidescreen2;
    EXPECT_TRUE(box.Command1.Enabled);
    EXPECT_TRUE(box.Command2.Enabled);
    EXPECT_FALSE(box.Command3.Enabled);
    EXPECT_TRUE(box.Command4.Enabled);
    EXPECT_TRUE(box.Command5.Enabled);
}

TEST(FullScreenKeys, OnlyEscapeCloses) {
    Show show;
    StartInScreen(show);
    show.screen.KeyDown(13);
    show.screen.P2.KeyDown(32);
    show.screen.Picture2.KeyDown(26);
    EXPECT_TRUE(show.screen.Visible);
    EXPECT_EQ(show.state.UserInputSeen, 1);
    EXPECT_EQ(show.state.EffectStop, 1);
    show.screen.P2.KeyDown(kEscape);
    EXPECT_FALSE(show.screen.Loaded);
}

TEST(FullScreenKeys, AreRefusedByALockAndABusyPointer) {
    Show show;
    StartInScreen(show);
    show.state.MacroWaitClick = 1;
    show.screen.KeyDown(kEscape);
    show.screen.Click();
    EXPECT_TRUE(show.screen.Visible);
    show.state.MacroWaitClick = 0;
    show.windows.SetPointer(model::kPointerArrowBusy);
    show.screen.KeyDown(kEscape);
    show.screen.P2.Click();
    EXPECT_TRUE(show.screen.Visible);
    EXPECT_EQ(show.state.EffectStop, 1) << "an effect in progress is cut short all the same";
    show.windows.SetPointer(model::kPointerNormal);
    show.screen.KeyDown(kEscape);
    EXPECT_FALSE(show.screen.Visible);
}

TEST(FullScreenClick, ClosesFromEverySurface) {
    for (int surface = 0; surface < 3; ++surface) {
        Show show;
        StartInScreen(show);
        const model::Event<>* clicks[] = {&show.screen.Click, &show.screen.P2.Click,
                                          &show.screen.Picture2.Click};
        (*clicks[surface])();
        EXPECT_FALSE(show.screen.Visible) << surface;
    }
}

TEST(FullScreenClick, DoesNotCloseUnderMacroButtons) {
    for (const bool menu : {true, false}) {
        Show show;
        StartInScreen(show);
        show.state.MacroButtonsShown = menu ? 1 : 0;
        show.screen.Command1.Visible = !menu;
        show.state.ControlBoxFlag = 0;
        show.screen.P2.Click();
        EXPECT_TRUE(show.screen.Visible);
        EXPECT_TRUE(show.windows.slidescreen2.Visible) << "but it brings the box up";
    }
}

TEST(FullScreenClick, IsIgnoredDuringADragAndRightAfterAVideo) {
    Show show;
    show.state.ControlBoxFlag = 0;
    StartInScreen(show);
    show.windows.slidescreen2.Hide();
    show.state.MacroCursorHidden = 1;
    show.screen.P2.Click();
    show.state.MacroCursorHidden = 0;
    show.form3.Timer1.Enabled = true;
    show.screen.P2.Click();
    EXPECT_TRUE(show.screen.Visible);
    EXPECT_FALSE(show.windows.slidescreen2.Visible);
    show.form3.Timer1.Enabled = false;
    show.screen.P2.Click();
    EXPECT_FALSE(show.screen.Visible);
}

TEST(FullScreenUnload, LetsTheShowGoOnInTheWindow) {
    Show show;
    show.state.ControlBoxFlag = 0;
    StartInScreen(show);
    show.loop.Run(1000);
    show.screen.menu2.Visible = true;
    show.screen.Picture1(5).Visible = true;
    show.state.JumpRequested = 1;
    show.state.MacroCursorHidden = 1;
    show.screen.Unload();
    EXPECT_EQ(show.state.FullScreenClosed, 1);
    EXPECT_EQ(show.state.FullScreenClosedByUser, 0);
    EXPECT_EQ(show.state.FullScreenActive, 0);
    EXPECT_EQ(show.state.JumpRequested, 0);
    EXPECT_EQ(show.state.MacroCursorHidden, 0);
    EXPECT_EQ(show.state.EffectDcValid, 0);
    EXPECT_EQ(show.state.EffectDc, nullptr);
    EXPECT_FALSE(show.screen.menu2.Visible);
    EXPECT_FALSE(show.screen.Picture1(5).Visible);
    EXPECT_FALSE(show.windows.slidescreen2.Visible);
    EXPECT_TRUE(show.form1.Visible);
    EXPECT_TRUE(show.form1.Picture1.AutoRedraw);
    EXPECT_EQ(show.state.ShowRunning, 1);
    EXPECT_EQ(show.state.SlideIndex, 2);
    EXPECT_EQ(show.Buttons(), "PXF");
    show.loop.Run(2000);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2})) << "without a new interval";
}

TEST(FullScreenUnload, EndsTheShowWhereNothingContinuesIt) {
    for (int16_t model::ShowState::*sign :
         {&model::ShowState::LinkRunning, &model::ShowState::ReturnToSlideList,
          &model::ShowState::ExitToMainOnClose, &model::ShowState::LinkWindowOpen,
          &model::ShowState::FullScreenEndMark, &model::ShowState::AlwaysFullFlag}) {
        Show show;
        StartInScreen(show);
        show.state.LinkIndex = 2;
        show.state.SoundPaused = 1;
        show.state.CdPaused = 1;
        show.state.SoundListPos = 3;
        show.state.*sign = sign == &model::ShowState::AlwaysFullFlag ? 0 : 1;
        show.screen.Unload();
        EXPECT_EQ(show.state.FullScreenClosedByUser, 1);
        EXPECT_EQ(show.state.StopRequest, 1);
        EXPECT_EQ(show.state.LinkRunning, 0);
        EXPECT_EQ(show.state.LinkIndex, 0);
        EXPECT_EQ(show.state.ShowRunning, 0);
        EXPECT_EQ(show.state.SlideIndex, 0);
        EXPECT_EQ(show.state.StartLatch, 0);
        EXPECT_EQ(show.state.SoundPaused, 0);
        EXPECT_EQ(show.state.CdPaused, 0);
        EXPECT_EQ(show.state.SoundListPos, 0);
        EXPECT_EQ(show.state.SlideListEnd, 4);
        EXPECT_FALSE(show.form1.Timer1.Enabled);
        EXPECT_TRUE(show.PreviewEmpty());
        EXPECT_TRUE(show.FileEntriesShown());
        EXPECT_TRUE(show.MenusOn());
        EXPECT_EQ(show.Buttons(), "SF");
    }
}

TEST(FullScreenUnload, ReturnsToTheWindowItWasStartedFrom) {
    Show plain;
    StartInScreen(plain);
    plain.screen.Unload();
    EXPECT_TRUE(plain.form1.Visible);
    EXPECT_FALSE(plain.form3.Visible);

    Show list;
    list.state.ReturnToSlideList = 1;
    StartInScreen(list);
    list.screen.Unload();
    EXPECT_FALSE(list.form1.Visible);
    EXPECT_TRUE(list.form3.Visible);

    Show links;
    links.state.LinkWindowOpen = 1;
    links.state.ReturnToSlideList = 1;  // the link window comes first
    StartInScreen(links);
    links.screen.Unload();
    EXPECT_TRUE(links.windows.form9.Visible);
    EXPECT_FALSE(links.form1.Visible);
    EXPECT_FALSE(links.form3.Visible);
}

TEST(FullScreenUnload, BringsAHiddenPointerBack) {
    Show show;
    StartInScreen(show);
    for (int i = 0; i < 3; ++i) {
        show.windows.ShowCursor(false);
    }
    EXPECT_EQ(show.screen.CursorCount, -3);
    show.screen.Unload();
    EXPECT_EQ(show.form1.CursorCount, 0);
    EXPECT_EQ(show.screen.CursorCount, 0);

    StartInScreen(show);
    EXPECT_EQ(show.windows.ShowCursor(true), 1);
    EXPECT_EQ(show.windows.ShowCursor(true), 2);
    show.screen.Unload();
    EXPECT_EQ(show.form1.CursorCount, 2) << "one that is seen needs no call";
}

TEST(FullScreenUnload, FitsThePictureToThePreviewAgain) {
    struct {
        int16_t sizeAdjust, abort;
        int width;
    } const cases[] = {{0, 0, 800}, {1, 0, 800}, {2, 0, 1600}, {0, 1, 1600}};
    for (const auto& one : cases) {
        Show show(1);
        show.PutPicture(Show::PathOf(1), 1600, 900);
        show.state.SizeAdjust = one.sizeAdjust == 1 ? 0 : one.sizeAdjust;
        StartInScreen(show);
        ASSERT_EQ(show.form1.Picture1.Picture()->width, 1600) << "it fits the screen as it is";
        show.state.SizeAdjust = one.sizeAdjust;
        show.state.ShowAbort = one.abort;
        show.screen.Unload();
        // The preview has 800 × 450 pixels: (12600 − 600) / 15 by (8800 − 1450 − 600) / 15.
        EXPECT_EQ(show.form1.Picture1.Picture()->width, one.width);
    }
}

TEST(FullScreenClosedFlag, LastsForTheStepThatSawItAndNoLonger) {
    Show show;
    StartInScreen(show);
    show.state.TelopRunning = 1;  // the second step waits for it
    show.loop.At(3500, [&] { show.screen.Unload(); });
    show.loop.At(4000, [&] { show.state.TelopRunning = 0; });
    show.loop.Run(4100);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
    EXPECT_EQ(show.state.FullScreenClosed, 1);
    show.loop.Run(3000);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2, 3}));
    EXPECT_EQ(show.state.FullScreenClosed, 0);
}

TEST(FullScreenLoad, PreparesLayersAndObjects) {
    Show show;
    show.state.OverlayMode = 1;
    show.state.OverlayBackColor = 1;
    show.screen.Picture1(62).BackColor = 5;
    show.screen.Picture1(62).Visible = true;
    show.state.CutoutJump[62] = 4;
    show.state.FullScreenClosed = 1;
    show.screen.Load();
    EXPECT_EQ(show.state.FullScreenClosed, 0);
    EXPECT_FALSE(show.screen.Picture1(62).Visible);
    EXPECT_EQ(show.screen.Picture1(62).BackColor, 0xF0F0F0);
    EXPECT_EQ(show.state.CutoutJump[62], 0);
    EXPECT_EQ(show.screen.BackColor, 0);
    for (const model::PictureBox* layer : {&show.screen.P2, &show.screen.P3, &show.screen.P4}) {
        EXPECT_EQ(layer->Picture(), nullptr);
        EXPECT_EQ(layer->BackColor, 0xC0C0C0) << "light grey";
    }
    show.screen.Unload();
    show.state.OverlayMode = 0;
    show.screen.Load();
    for (const model::PictureBox* layer : {&show.screen.P2, &show.screen.P3, &show.screen.P4}) {
        EXPECT_EQ(layer->BackColor, 0);
    }
}

TEST(FullScreenUnload, FilmsThatTheListLeavesOutStillCount) {
    Show show;
    show.state.AlwaysFullFlag = 0;
    show.state.SlideList.Set(4, u"C:\\pic\\f.avi");
    show.state.SlideListEnd = 5;
    StartInScreen(show);
    show.screen.Unload();
    EXPECT_EQ(show.state.SlideIndex, 0);
    EXPECT_EQ(show.state.SlideListEnd, 5);
}

}  // namespace
}  // namespace playback_tests

// START in all its cases.
#include <gtest/gtest.h>

#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "show_support.h"

namespace playback_tests {
namespace {

TEST(Start, RunsTheFirstStepInsideItsHandler) {
    Show show;
    show.state.SlideIntervalSec = 7;
    show.form1.Timer1.Interval = 1;
    show.Start();
    EXPECT_EQ(show.Shown(), Numbers{1});
    EXPECT_EQ(show.form1.Timer1.Interval, 7000);
    EXPECT_TRUE(show.form1.Timer1.Enabled);
    EXPECT_EQ(show.state.StartLatch, 1);
    EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
    show.loop.Run(6999);
    EXPECT_EQ(show.Shown(), Numbers{1});
    show.loop.Run(1);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
}

TEST(Start, ResetsTheRun) {
    Show show;
    model::ShowState& state = show.state;
    for (int16_t model::ShowState::*flag :
         {&model::ShowState::SoundListStarted, &model::ShowState::LastWasVideo,
          &model::ShowState::Mp3VolumeOffset, &model::ShowState::RestartSoundMacro,
          &model::ShowState::RestartSoundFlag, &model::ShowState::MacroButtonsShown,
          &model::ShowState::StopRequest, &model::ShowState::FullScreenClosedByUser,
          &model::ShowState::ShowAbort, &model::ShowState::SoundPaused}) {
        state.*flag = 1;
    }
    state.PictureScale = 0.5;
    state.BorderColorIndex = state.LineSpaceExtra = state.OverlayFrameOff = 1;
    state.PicturePositionFixed = 1;
    state.OverlayBackText = u"112233";
    state.LinkedWavPath = u"old";
    state.LinkedMediaPath = u"old";
    state.ShowDateText = u"2000/01/01";
    show.Start();
    EXPECT_EQ(state.SoundListStarted, 0);
    EXPECT_EQ(state.LastWasVideo, 0);
    EXPECT_EQ(state.Mp3VolumeOffset, 0);
    EXPECT_EQ(state.RestartSoundMacro, 0);
    EXPECT_EQ(state.RestartSoundFlag, 0);
    EXPECT_EQ(state.MacroButtonsShown, 0);
    EXPECT_EQ(state.StopRequest, 0);
    EXPECT_EQ(state.FullScreenClosedByUser, 0);
    EXPECT_EQ(state.ShowAbort, 0);
    EXPECT_EQ(state.SoundPaused, 0);
    EXPECT_EQ(state.PictureScale, 0);
    EXPECT_EQ(state.BorderColorIndex, 0);
    EXPECT_EQ(state.LineSpaceExtra, 0);
    EXPECT_EQ(state.OverlayFrameOff, 0);
    EXPECT_EQ(state.PicturePositionFixed, 0);
    EXPECT_EQ(state.OverlayBackText, u"");
    EXPECT_EQ(state.LinkedWavPath, u"");
    EXPECT_NE(state.LinkedMediaPath, u"old");
    EXPECT_EQ(state.ShowDateText, u"2026/01/01");
    EXPECT_EQ(show.Shown(), Numbers{1});
}

TEST(Start, TakesTheDateOnAnySlide) {
    Show show;
    show.Start();
    show.Pause();
    show.loop.Run(24 * 3600 * 1000);
    show.Start();
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
    EXPECT_EQ(show.state.ShowDateText, u"2026/01/02");
}

TEST(Start, WithAlwaysFullGoesFullScreen) {
    Show show;
    show.state.AlwaysFullFlag = 0;
    show.Start();
    EXPECT_TRUE(show.screen.Visible);
    EXPECT_FALSE(show.form1.Visible);
    EXPECT_EQ(show.state.FullScreenActive, 1);
    EXPECT_EQ(show.Shown(), Numbers{1});
}

TEST(Start, IsRefusedWhileAStepRuns) {
    Show show;
    show.state.StepBusy = 1;
    show.Start();
    EXPECT_EQ(show.Buttons(), "SF");
    EXPECT_TRUE(show.FileEntriesShown());
    EXPECT_EQ(show.Shown(), Numbers{});
}

TEST(Start, AsksToFinishTheSelectionFirst) {
    Show show;
    show.state.SlideListWindowOpen = 1;
    show.Start();
    ASSERT_EQ(show.dialogs.messages.size(), 1u);
    EXPECT_EQ(show.dialogs.messages[0].text, u"ファイル選択を終了させてから行って下さい。");
    EXPECT_EQ(show.dialogs.messages[0].flags, 48);
    EXPECT_EQ(show.dialogs.messages[0].title, u"ファイル選択");
    EXPECT_EQ(show.Buttons(), "SF");
    EXPECT_EQ(show.Shown(), Numbers{});
}

TEST(Start, ALatchedOneOnlyHidesAndDisables) {
    Show show;
    show.state.StartLatch = 1;
    show.state.StopRequest = 1;
    show.Start();
    EXPECT_EQ(show.Buttons(), "");
    EXPECT_EQ(show.ToolButtons(), "000");
    EXPECT_TRUE(show.FileEntriesHidden());
    EXPECT_EQ(show.state.StopRequest, 1);
    EXPECT_EQ(show.state.SlideIndex, 0);
    EXPECT_EQ(show.state.ShowDateText, u"");
    EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
    EXPECT_EQ(show.Shown(), Numbers{});
}

TEST(Start, GoesOnWhereTheLastShowEnded) {
    struct Setting {
        int16_t resume;
        int first;
    };
    // After the last slide it begins at the top; -1 is left by a first slide that was removed.
    for (const Setting& setting : {Setting{0, 1}, {1, 2}, {2, 3}, {3, 1}, {9, 1}, {-1, 1}}) {
        Show show;
        show.state.StartOption = 1;
        show.state.ResumeIndex = setting.resume;
        show.Start();
        EXPECT_EQ(show.Shown(), Numbers{setting.first}) << setting.resume;
    }
}

TEST(Start, FromTheTopWhateverWasShownLast) {
    Show show;
    show.state.ResumeIndex = 2;
    show.Start();
    EXPECT_EQ(show.Shown(), Numbers{1});
}

TEST(Start, TakesAJumpThatWasAskedFor) {
    Show show;
    show.state.StartOption = 1;
    show.state.ResumeIndex = 1;
    show.state.JumpRequested = 1;
    show.state.JumpTarget = 2;
    show.Start();
    EXPECT_EQ(show.Shown(), Numbers{3});
    EXPECT_EQ(show.state.JumpRequested, 0);
}

TEST(Start, OnAPausedShowGoesOnWithTheFollowingSlide) {
    Show show;
    show.Start();
    show.Pause();
    show.Start();
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
    EXPECT_EQ(show.Buttons(), "PXF");
    show.loop.Run(3000);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2, 3}));
}

TEST(Start, WaitsForNoSoundUnlessAMacroEndedTheStepOfALinkedMode) {
    struct Setting {
        int16_t mode, macroEndShow;
        bool waits;
    };
    for (const Setting& setting :
         {Setting{1, 0, false}, {1, 1, true}, {9, 1, true}, {6, 1, false}}) {
        Show show;
        show.state.SoundMode = setting.mode;
        show.state.SoundSyncFlag = 0;
        show.state.SoundPlaying = 1;
        show.state.MacroEndShow = setting.macroEndShow;
        show.Start();
        EXPECT_EQ(show.loop.sleeps.size(), setting.waits ? 1u : 0u)
            << setting.mode << " " << setting.macroEndShow;
    }
}

TEST(Start, AFailureThatIsNotForgivenStops) {
    Show show;
    show.Break(1);
    show.dialogs.answers = {platform::Answer::No};
    show.Start();
    EXPECT_EQ(show.state.ShowAbort, 0);
    EXPECT_EQ(show.state.StopRequest, 1);
    EXPECT_EQ(show.state.StartLatch, 0);
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_EQ(show.state.SlideIndex, 0);
    EXPECT_EQ(show.Buttons(), "SF");
    EXPECT_FALSE(show.form1.Timer1.Enabled);
    EXPECT_EQ(show.form1.Timer1.Interval, 3000);
    EXPECT_TRUE(show.FileEntriesShown());
}

TEST(Start, AListThatLostItsLastPictureLeavesNothingToStart) {
    Show show(1);
    show.Break(1);
    show.state.ListErrorDelete = 1;
    show.Start();
    EXPECT_EQ(show.dialogs.messages.size(), 1u);
    EXPECT_EQ(show.Buttons(), "");
    EXPECT_EQ(show.ToolButtons(), "111");
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_FALSE(show.form1.Timer1.Enabled);
}

/// The macro of the first slide holds it for ever.
struct HeldByItsMacro : Show {
    HeldByItsMacro() {
        state.TextMacroFlag = 0;
        files.Put(u"C:\\pic\\1.txt", "MENU6(1,\"x\")\r\n");
    }
};

TEST(StartFirstStep, TheRunningButtonsStandBeforeIt) {
    HeldByItsMacro show;
    std::string buttons;
    bool pauses = true, goesFull = true;
    show.loop.At(1000, [&] {
        buttons = show.Buttons();
        show.Pause();
        pauses = show.state.ShowRunning != 1;
        show.form1.Command4.Click();
        goesFull = show.screen.Loaded;
        show.Stop();
    });
    show.Start();
    EXPECT_EQ(buttons, "PXF");
    EXPECT_FALSE(pauses) << "within a step";
    EXPECT_FALSE(goesFull) << "within a step";
}

TEST(StartFirstStep, StopInItEndsTheShow) {
    HeldByItsMacro show;
    show.loop.At(1000, [&] { show.Stop(); });
    show.Start();
    EXPECT_EQ(show.Buttons(), "SF");
    EXPECT_EQ(show.ToolButtons(), "111");
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_EQ(show.state.SlideIndex, 0);
    EXPECT_EQ(show.state.StepBusy, 0);
    EXPECT_FALSE(show.form1.Timer1.Enabled);
    EXPECT_TRUE(show.FileEntriesShown());
    EXPECT_TRUE(show.MenusOn());
    EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
    show.loop.Run(10000);
    EXPECT_EQ(show.Shown(), Numbers{1});
}

TEST(StartFirstStep, PauseInItsWaitForAScrollingTextHolds) {
    Show show;
    show.Start();
    show.Pause();
    show.state.TelopRunning = 1;
    show.loop.After(500, [&] { show.Pause(); });
    show.Start();
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_EQ(show.Shown(), Numbers{1});
    EXPECT_EQ(show.Buttons(), "SX>F");
    EXPECT_FALSE(show.form1.Timer1.Enabled);
    show.Start();
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
}

TEST(StartFirstStep, UnderTheLockOfAMacroAFailureStillEndsTheShow) {
    Show show;
    show.Start();
    show.Pause();
    show.Break(2);
    show.state.MacroWaitClick = 1;
    show.dialogs.answers = {platform::Answer::No};
    show.Start();
    EXPECT_EQ(show.Buttons(), "SF");
    EXPECT_EQ(show.state.MacroWaitClick, 0);
    EXPECT_EQ(show.state.ShowRunning, 0);
}

TEST(StartFirstStep, OutOfScheduleLeavesThePointerAndPauseFree) {
    Show show;
    for (const int slide : {1, 2, 3}) {
        show.PutOut(slide);
    }
    show.Start();
    EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
    EXPECT_EQ(show.form1.Timer1.Interval, 1);
    show.loop.Run(1);
    show.Pause();
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_TRUE(show.form1.Command1.Enabled);
}

TEST(StartFirstStep, AMissingVideoLeavesThePointerFree) {
    Show show;
    show.form3.List1.SetRow(0, u"C:\\pic\\gone.mp4");
    show.state.SlideList.Set(1, u"C:\\pic\\gone.mp4");
    show.Start();
    EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
}

TEST(StartFirstStep, AShowThatHasShownNothingYetMovesToTheFullScreen) {
    Show show;
    for (const int slide : {1, 2, 3}) {
        show.PutOut(slide);
    }
    show.Start();
    show.form1.Command4.Click();
    EXPECT_TRUE(show.screen.Visible);
    EXPECT_EQ(show.state.ShowRunning, 1);
    EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
}

TEST(Start, TheLongestIntervalOfAFileIsTheLongestOfTheTimer) {
    Show show;
    show.state.SlideIntervalSec = 2147484;  // 2147483647 ms, rounded
    show.Start();
    EXPECT_EQ(show.form1.Timer1.Interval, 2147483647);
    EXPECT_TRUE(show.form1.Timer1.Enabled);
}

/// Paused on the last of three slides.
struct AtTheEnd : Show {
    AtTheEnd() {
        Start();
        loop.Run(6000);
        Pause();
        trace.lines.clear();
    }
};

TEST(StartAtTheEnd, WithoutRepeatGoesIdle) {
    AtTheEnd show;
    ASSERT_EQ(show.state.SlideIndex, 3);
    show.state.RepeatFlag = 1;
    show.state.SoundPaused = 1;
    show.state.CdPaused = 1;
    show.state.SoundListPos = 4;
    show.state.CdProgramPosition = 4;
    show.Start();
    EXPECT_EQ(show.Shown(), Numbers{});
    EXPECT_EQ(show.form1.Caption(), u"ﾊﾟﾗﾋﾟｺ Win Ver.9.10");
    EXPECT_EQ(show.state.StepBusy, 0);
    EXPECT_EQ(show.state.StopRequest, 1);
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_EQ(show.state.SlideIndex, 0);
    EXPECT_EQ(show.state.SoundPaused, 0);
    EXPECT_EQ(show.state.CdPaused, 0);
    EXPECT_EQ(show.state.SoundListPos, 0);
    EXPECT_EQ(show.state.CdProgramPosition, 0);
    EXPECT_EQ(show.state.StartLatch, 0);
    EXPECT_TRUE(show.PreviewEmpty());
    EXPECT_EQ(show.Buttons(), "SF");
    EXPECT_EQ(show.ToolButtons(), "111");
    EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
    EXPECT_TRUE(show.MenusOn());
    EXPECT_FALSE(show.form1.Timer1.Enabled);
    show.Start();
    EXPECT_EQ(show.Shown(), Numbers{1}) << "the next START begins at the top";
}

TEST(StartAtTheEnd, TheCaptionIsTheDocuments) {
    AtTheEnd show;
    show.state.RepeatFlag = 1;
    show.state.DocumentPath = u"C:\\show\\a.kvs";
    show.Start();
    EXPECT_EQ(show.form1.Caption(), u"ｽﾗｲﾄﾞ - C:\\show\\a.kvs");
}

TEST(StartAtTheEnd, WithRepeatBeginsAgainAfterOneInterval) {
    AtTheEnd show;
    show.Start();
    EXPECT_EQ(show.Shown(), Numbers{});
    EXPECT_EQ(show.state.SlideIndex, 1);
    EXPECT_EQ(show.state.ShowRunning, 1);
    EXPECT_EQ(show.Buttons(), "PXF");
    EXPECT_EQ(show.form1.Timer1.Interval, 3000);
    show.loop.Run(2999);
    EXPECT_EQ(show.Shown(), Numbers{});
    show.loop.Run(1);
    EXPECT_EQ(show.Shown(), Numbers{1});
}

}  // namespace
}  // namespace playback_tests

// PAUSE, STOP, previous, next, macro buttons, and the states of the buttons.
#include "playback/transport.h"

#include <gtest/gtest.h>

#include "model/controls.h"
#include "model/windows/main_window.h"
#include "show_support.h"

namespace playback_tests {
namespace {

TEST(Transport, StopBringsTheTextOriginBack) {
    Show show;
    show.form1.Command1.Click();
    model::SetTextOriginOfRun(show.state, 1);
    show.form1.Command3.Click();
    EXPECT_EQ(show.state.TextOriginScreen, 0);
    EXPECT_EQ(show.state.TextOriginByMacro, 0);
}

TEST(TransportStates, IdleWithAnEmptyAndAFilledList) {
    Show empty(0);
    EXPECT_EQ(empty.Buttons(), "");
    EXPECT_EQ(empty.ToolButtons(), "111");
    Show filled;
    EXPECT_EQ(filled.Buttons(), "SF");
    EXPECT_EQ(filled.state.ShowRunning, 0);
    EXPECT_EQ(filled.state.SlideIndex, 0);
}

TEST(TransportStates, RunningPausedIdle) {
    Show show;
    show.Start();
    EXPECT_EQ(show.Buttons(), "PXF");
    EXPECT_EQ(show.ToolButtons(), "000");
    EXPECT_EQ(show.state.ShowRunning, 1);
    EXPECT_EQ(show.state.SlideIndex, 2) << "the next to show";
    EXPECT_TRUE(show.FileEntriesHidden());
    EXPECT_TRUE(show.MenusOff());
    show.Pause();
    EXPECT_EQ(show.Buttons(), "SX>F");
    EXPECT_EQ(show.ToolButtons(), "000");
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_EQ(show.state.SlideIndex, 1) << "the one on the screen";
    EXPECT_TRUE(show.FileEntriesHidden());
    EXPECT_TRUE(show.MenusOff());
    show.Stop();
    EXPECT_EQ(show.Buttons(), "SF");
    EXPECT_EQ(show.ToolButtons(), "111");
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_EQ(show.state.SlideIndex, 0);
    EXPECT_TRUE(show.FileEntriesShown());
    EXPECT_TRUE(show.MenusOn());
}

TEST(Pause, IsRefusedByAMacroAPointerAndAStep) {
    struct Guard {
        const char* what;
        void (*set)(Show&);
    };
    const Guard guards[] = {
        {"macro", [](Show& show) { show.state.MacroWaitClick = 1; }},
        {"busy", [](Show& show) { show.windows.SetPointer(model::kPointerBusy); }},
        {"arrow", [](Show& show) { show.windows.SetPointer(model::kPointerArrowBusy); }},
        {"step", [](Show& show) { show.state.StepBusy = 1; }},
    };
    for (const Guard& guard : guards) {
        Show show;
        show.Start();
        guard.set(show);
        show.Pause();
        EXPECT_EQ(show.state.ShowRunning, 1) << guard.what;
        EXPECT_EQ(show.state.SlideIndex, 2) << guard.what;
        EXPECT_EQ(show.state.StartLatch, 1) << guard.what;
        EXPECT_EQ(show.Buttons(), "PXF") << guard.what;
        EXPECT_TRUE(show.sound.commands.empty()) << guard.what;
    }
}

TEST(Pause, StopsTheClockAndFreesTheLatch) {
    Show show;
    show.Start();
    show.form1.Picture3.Visible = true;
    show.screen.Picture2.Visible = true;
    show.Pause();
    EXPECT_FALSE(show.form1.Timer1.Enabled);
    EXPECT_EQ(show.state.StartLatch, 0);
    EXPECT_EQ(show.state.StopRequest, 0);
    EXPECT_FALSE(show.form1.Picture3.Visible);
    EXPECT_FALSE(show.screen.Picture2.Visible);
    EXPECT_FALSE(show.PreviewEmpty());
    show.loop.Run(60000);
    EXPECT_EQ(show.Shown(), Numbers{1});
}

TEST(Pause, PreviousAndNextWhereASlideExists) {
    const char* const buttons[] = {"SX>F", "SX<>F", "SX<F"};
    for (int shown = 1; shown <= 3; ++shown) {
        Show show;
        show.Start();
        show.loop.Run((shown - 1) * 3000);
        show.Pause();
        EXPECT_EQ(show.state.SlideIndex, shown);
        EXPECT_EQ(show.Buttons(), buttons[shown - 1]);
    }
    Show single(1);
    single.Start();
    single.Pause();
    EXPECT_EQ(single.Buttons(), "SXF");
}

TEST(Pause, SoundByMode) {
    struct Setting {
        int16_t mode, cdPlusLinkedWav, soundPaused;
    };
    for (const Setting& setting : {Setting{0, 1, 0},
                                   {1, 1, 1},
                                   {2, 1, 0},
                                   {2, 0, 1},
                                   {3, 1, 1},
                                   {4, 1, 1},
                                   {5, 1, 1},
                                   {6, 1, 1},
                                   {7, 1, 0},
                                   {8, 1, 0},
                                   {9, 1, 1}}) {
        Show show;
        show.Start();
        show.state.SoundMode = setting.mode;
        show.state.CdPlusLinkedWav = setting.cdPlusLinkedWav;
        show.sound.answer = [](TextView command) -> Text {
            return command == u"status cdaudio current track" ? u"5" : u"";
        };
        show.Pause();
        const Texts expected = setting.mode == 2
                                   ? Texts{u"status cdaudio current track", u"stop cdaudio"}
                                   : Texts{u"stop cdaudio"};
        EXPECT_EQ(show.CommandsWith(u"cdaudio"), expected) << setting.mode;
        EXPECT_EQ(show.state.SoundPaused, setting.soundPaused) << setting.mode;
        EXPECT_EQ(show.state.CdPaused, setting.mode == 2 ? 1 : 0) << setting.mode;
        EXPECT_EQ(show.state.CdPausedTrack, setting.mode == 2 ? u"5" : u"") << setting.mode;
    }
}

TEST(Stop, ClearsTheWholeRun) {
    Show show;
    show.Start();
    show.state.CdPaused = 1;
    show.state.SoundPaused = 1;
    show.state.SoundListPos = 3;
    show.state.CdProgramPosition = 3;
    show.state.MacroDelayWaiting = 1;
    show.state.StepBusy = 1;
    show.form1.Picture3.Visible = true;
    show.form1.Command8.Visible = true;
    show.form1.Picture2(5).Visible = true;
    show.form1.Timer1.Interval = 10;
    show.windows.SetPointer(model::kPointerArrowBusy);
    show.Stop();
    EXPECT_EQ(show.state.StepBusy, 0);
    EXPECT_EQ(show.state.StopRequest, 1);
    EXPECT_EQ(show.state.MacroDelayWaiting, 0);
    EXPECT_EQ(show.state.StartLatch, 0);
    EXPECT_EQ(show.state.CdPaused, 0);
    EXPECT_EQ(show.state.SoundPaused, 0);
    EXPECT_EQ(show.state.SoundListPos, 0);
    EXPECT_EQ(show.state.CdProgramPosition, 0);
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_EQ(show.state.SlideIndex, 0);
    EXPECT_FALSE(show.form1.Picture3.Visible);
    EXPECT_FALSE(show.form1.Command8.Visible);
    EXPECT_FALSE(show.form1.Picture2(5).Visible);
    EXPECT_EQ(show.form1.Timer1.Interval, 3000);
    EXPECT_FALSE(show.form1.Timer1.Enabled);
    EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
    EXPECT_TRUE(show.PreviewEmpty());
    show.loop.Run(60000);
    EXPECT_EQ(show.Shown(), Numbers{1});
}

TEST(Stop, PutsTheDocumentBackIntoTheCaption) {
    Show show;
    show.state.DocumentPath = u"C:\\pic\\show.kvs";
    show.Start();
    EXPECT_EQ(show.form1.Caption(), u"1.png");
    show.Stop();
    EXPECT_EQ(show.form1.Caption(), u"ｽﾗｲﾄﾞ - C:\\pic\\show.kvs");
    show.state.DocumentPath.clear();
    show.Start();
    show.Stop();
    EXPECT_EQ(show.form1.Caption(), u"ﾊﾟﾗﾋﾟｺ Win Ver.9.10");
}

TEST(Stop, IsRefusedByAMacroAndAfterAStop) {
    for (int16_t model::ShowState::*flag :
         {&model::ShowState::MacroWaitClick, &model::ShowState::StopRequest}) {
        Show show;
        show.Start();
        show.state.*flag = 1;
        show.Stop();
        EXPECT_EQ(show.state.ShowRunning, 1);
        EXPECT_EQ(show.Buttons(), "PXF");
        EXPECT_TRUE(show.form1.Timer1.Enabled);
    }
}

TEST(Stop, TakesTheFullScreenDown) {
    Show show;
    show.state.AlwaysFullFlag = 0;
    show.Start();
    show.Stop();
    EXPECT_FALSE(show.screen.Loaded);
    EXPECT_TRUE(show.form1.Visible);
    EXPECT_EQ(show.state.FullScreenActive, 0);
    EXPECT_EQ(show.state.SlideIndex, 0);
    EXPECT_EQ(show.Buttons(), "SF");
}

TEST(PreviousNext, WalkThroughThePausedShow) {
    Show show;
    show.Start();
    show.Pause();
    show.Next();
    EXPECT_EQ(show.state.SlideIndex, 2);
    EXPECT_EQ(show.Buttons(), "SX<>F");
    show.Next();
    EXPECT_EQ(show.state.SlideIndex, 3);
    EXPECT_EQ(show.Buttons(), "SX<F");
    show.Next();
    EXPECT_EQ(show.state.SlideIndex, 3) << "nothing follows";
    show.Previous();
    EXPECT_EQ(show.Buttons(), "SX<>F");
    show.Previous();
    EXPECT_EQ(show.state.SlideIndex, 1);
    EXPECT_EQ(show.Buttons(), "SX>F");
    show.Previous();
    EXPECT_EQ(show.state.SlideIndex, 1);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2, 3, 2, 1}));
    EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
    EXPECT_FALSE(show.form1.Timer1.Enabled);
}

TEST(PreviousNext, PassOverSlidesThatAreOutOfSchedule) {
    Show show(5);
    show.PutOut(2);
    show.PutOut(3);
    show.Start();
    show.Pause();
    show.Next();
    EXPECT_EQ(show.Shown(), (Numbers{1, 4}));
    EXPECT_EQ(show.Skipped(), (Numbers{2, 3}));
    EXPECT_EQ(show.state.SlideIndex, 4);
    show.Previous();
    EXPECT_EQ(show.Shown(), (Numbers{1, 4, 1}));
    EXPECT_EQ(show.Skipped(), (Numbers{2, 3, 3, 2}));
    EXPECT_EQ(show.Buttons(), "SX>F");
}

TEST(PreviousNext, EndAtTheEdgeWhereNothingIsInSchedule) {
    Show show;
    show.PutOut(2);
    show.PutOut(3);
    show.Start();
    show.Pause();
    show.Next();
    EXPECT_EQ(show.Shown(), Numbers{1});
    EXPECT_EQ(show.state.SlideIndex, 3);
    EXPECT_EQ(show.Buttons(), "SX<F");
    EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
}

TEST(PreviousNext, AreRefusedWhileAStepRunsOrTheShowDoes) {
    for (int16_t model::ShowState::*flag :
         {&model::ShowState::StepBusy, &model::ShowState::ShowRunning}) {
        Show show;
        show.Start();
        show.loop.Run(3000);
        show.Pause();
        show.state.*flag = 1;
        show.Next();
        show.Previous();
        EXPECT_EQ(show.state.SlideIndex, 2);
        EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
    }
}

TEST(PreviousNext, DrawNoRandomSlide) {
    Show show;
    show.state.RandomFlag = 0;
    show.loop.randomNumbers = {0.0, 0.9};
    show.Start();
    show.Pause();
    show.Next();
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
    EXPECT_EQ(show.loop.randomNumbers.size(), 1u);
}

TEST(MacroButtons, SetTheirFlags) {
    Show show;
    show.form1.Command8.Click();
    EXPECT_EQ(show.state.MacroNextPressed, 1);
    EXPECT_EQ(show.state.MacroBackPressed, 0);
    show.form1.Command9.Click();
    EXPECT_EQ(show.state.MacroBackPressed, 1);
}

TEST(MacroButtons, MenusJumpFromTheCurrentSlide) {
    struct Jump {
        int16_t value, index, target;
    };
    for (const Jump& jump :
         {Jump{3, 5, 7}, {1, 5, 5}, {0, 5, 4}, {-2, 5, 2}, {-9, 5, 0}, {32767, 30000, 32767}}) {
        Show show(1);
        show.state.MenuJump[2] = jump.value;
        show.state.SlideIndex = jump.index;
        show.state.MacroButtonsShown = 1;
        show.state.MacroDelayWaiting = 1;
        show.form1.menu2.Click();
        EXPECT_EQ(show.state.SlideIndex, jump.target) << jump.value;
        EXPECT_EQ(show.state.MacroButtonsShown, 0);
        EXPECT_EQ(show.state.MacroDelayWaiting, 0);
        EXPECT_EQ(show.state.MacroJumpChosen, 1);
    }
}

TEST(MacroButtons, EachMenuHasItsOwnJump) {
    Show show(1);
    model::Button* const menus[] = {&show.form1.menu1, &show.form1.menu2, &show.form1.menu3,
                                    &show.form1.menu4, &show.form1.menu5};
    for (int i = 1; i <= 5; ++i) {
        show.state.MenuJump[static_cast<size_t>(i)] = static_cast<int16_t>(10 * i);
    }
    for (int i = 1; i <= 5; ++i) {
        show.state.SlideIndex = 1;
        menus[i - 1]->Click();
        EXPECT_EQ(show.state.SlideIndex, 10 * i);
    }
}

TEST(OtherTimers, Timer2ClearsThePreviewOnce) {
    Show show;
    show.Step(1);
    show.windows.SetPointer(model::kPointerArrowBusy);
    show.form1.Timer2.Interval = 50;
    show.form1.Timer2.Enabled = true;
    show.loop.Run(50);
    EXPECT_TRUE(show.PreviewEmpty());
    EXPECT_FALSE(show.form1.Timer2.Enabled);
    EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
}

TEST(OtherTimers, Timer3EndsTheMacrosWait) {
    Show show;
    show.state.MacroDelayWaiting = 1;
    show.form1.Timer3.Interval = 500;
    show.form1.Timer3.Enabled = true;
    show.loop.Run(499);
    EXPECT_EQ(show.state.MacroDelayWaiting, 1);
    show.loop.Run(1);
    EXPECT_EQ(show.state.MacroDelayWaiting, 0);
}

}  // namespace
}  // namespace playback_tests

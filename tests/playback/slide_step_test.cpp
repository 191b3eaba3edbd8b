// One slide step: schedule, entry, waits, random order, exits.
#include "playback/slide_step.h"

#include <gtest/gtest.h>

#include "model/controls.h"
#include "model/windows/main_window.h"
#include "playback/schedule.h"
#include "show_support.h"

namespace playback_tests {
namespace {

const Text kNever(16, u' ');

struct ScheduleCase {
    const char* what;
    Text from, to;
    bool shown;
};

// The step runs at 2026-01-01 12:00:00.
TEST(StepSchedule, ComparesWithTheMomentOfThePass) {
    const ScheduleCase cases[] = {
        {"none", kNever, kNever, true},
        {"no fields at all", u"", u"", true},
        {"from this minute", u"2026/01/01 12:00", kNever, true},
        {"from the next minute", u"2026/01/01 12:01", kNever, false},
        {"to this minute", kNever, u"2026/01/01 12:00", true},
        {"to the last minute", kNever, u"2026/01/01 11:59", false},
        {"inside", u"2025/12/31 00:00", u"2026/01/02 00:00", true},
        {"from and to equal now", u"2026/01/01 12:00", u"2026/01/01 12:00", true},
        {"time only: from now", u"           12:00", kNever, true},
        {"time only: from later", u"           12:01", kNever, false},
        {"time only: to now", kNever, u"           12:00", true},
        {"time only: to earlier", kNever, u"           11:59", false},
        {"date only: from today's midnight", u"2026/01/01      ", kNever, true},
        {"date only: from tomorrow", u"2026/01/02      ", kNever, false},
        {"date only: to today's midnight", kNever, u"2026/01/01      ", false},
        {"date only: to tomorrow", kNever, u"2026/01/02      ", true},
        {"inside from, outside to", u"2025/01/01 00:00", u"2025/01/02 00:00", false},
    };
    for (const ScheduleCase& one : cases) {
        Show show;
        show.Schedule(1, one.from, one.to);
        show.Step(1);
        EXPECT_EQ(show.Shown(), one.shown ? Numbers{1} : Numbers{}) << one.what;
        EXPECT_EQ(show.Skipped(), one.shown ? Numbers{} : Numbers{1}) << one.what;
        EXPECT_EQ(show.state.ScheduleSkipped, one.shown ? 0 : 1) << one.what;
    }
}

TEST(StepSchedule, ASecondPastTheMinuteIsOutside) {
    Show show;
    show.loop.start.seconds += 1;
    show.Schedule(1, kNever, u"2026/01/01 12:00");
    show.Step(1);
    EXPECT_EQ(show.Shown(), Numbers{});
}

TEST(StepSchedule, SkippingTouchesNothing) {
    Show show;
    show.PutOut(2);
    show.state.ShowDateText = u"2026/01/01";
    show.state.ShowDateTime = show.loop.Now();
    show.state.ResumeIndex = 7;
    show.state.ShowAbort = 1;
    show.state.EffectSpeedTrim = 9;
    show.state.LoadMode = 1;
    show.state.SoundPlaying = 1;
    show.state.SoundSyncFlag = 0;
    show.state.SoundMode = 1;
    show.form1.Command8.Visible = true;
    show.windows.SetPointer(model::kPointerArrowBusy);
    show.form1.Caption = Text(u"before");
    show.Step(2);
    EXPECT_EQ(show.form1.Timer1.Interval, 1);
    EXPECT_FALSE(show.form1.Timer1.Enabled);
    EXPECT_EQ(show.state.ScheduleSkipped, 1);
    EXPECT_EQ(show.state.SlideIndex, 2);
    EXPECT_EQ(show.state.StepBusy, 0);
    EXPECT_EQ(show.state.ResumeIndex, 7);
    EXPECT_EQ(show.state.ShowAbort, 1);
    EXPECT_EQ(show.state.EffectSpeedTrim, 9);
    EXPECT_EQ(show.state.LoadMode, 1);
    EXPECT_TRUE(show.form1.Command8.Visible);
    EXPECT_EQ(show.windows.Pointer(), model::kPointerArrowBusy);
    EXPECT_EQ(show.form1.Caption(), u"before");
    EXPECT_TRUE(show.sound.commands.empty());
    EXPECT_TRUE(show.imaging.log.empty());
    EXPECT_TRUE(show.loop.sleeps.empty());
}

TEST(StepSchedule, TheMomentIsFrozenUntilSlide1ComesUpAgain) {
    Show show;
    show.Step(1);
    const platform::DateTime noon = show.state.ShowDateTime;
    EXPECT_EQ(show.state.ShowDateText, u"2026/01/01");
    show.loop.Run(13 * 3600 * 1000);  // past midnight
    show.Step(2);
    EXPECT_EQ(show.state.ShowDateText, u"2026/01/01");
    EXPECT_EQ(show.state.ShowDateTime, noon);
    show.Step(1);
    EXPECT_EQ(show.state.ShowDateText, u"2026/01/02");
    EXPECT_EQ(show.state.ShowDateTime.seconds, noon.seconds + 13 * 3600);
}

TEST(StepSchedule, ATimeAloneLiesOnTheDayOfThePass) {
    Show show;
    show.state.ShowDateText = u"2025/12/31";
    show.state.ShowDateTime = platform::FromCalendar({2025, 12, 31, 10, 0, 0});
    show.Schedule(2, u"           11:00");
    show.Step(2);
    EXPECT_EQ(show.Skipped(), Numbers{2}) << "11:00 of the frozen day has not come";
}

TEST(StepSchedule, AnEmptyShowDateIsTakenOnAnySlide) {
    Show show;
    show.Step(3);
    EXPECT_EQ(show.state.ShowDateText, u"2026/01/01");
    EXPECT_EQ(show.state.ShowDateTime, show.loop.start);
}

TEST(StepEntry, ClearsTheMacroObjectsOfTheSlideBefore) {
    Show show;
    show.form1.Command8.Visible = true;
    show.form1.menu5.Visible = true;
    show.screen.menu1.Visible = true;
    show.form1.Picture2(62).Visible = true;
    show.screen.Picture1(0).Visible = true;
    show.Step(2);
    EXPECT_FALSE(show.form1.Command8.Visible);
    EXPECT_FALSE(show.form1.menu5.Visible);
    EXPECT_FALSE(show.screen.menu1.Visible);
    EXPECT_FALSE(show.form1.Picture2(62).Visible);
    EXPECT_FALSE(show.screen.Picture1(0).Visible);
    EXPECT_EQ(show.state.ResumeIndex, 2);
    EXPECT_EQ(show.state.StepBusy, 0);
}

TEST(StepEntry, AStopRequestEndsTheStepAfterTheEntry) {
    Show show;
    show.state.StopRequest = 1;
    show.state.ShowAbort = 1;
    show.state.EffectSpeedTrim = 9;
    show.form1.Command8.Visible = true;
    show.Step(2);
    EXPECT_FALSE(show.form1.Command8.Visible);
    EXPECT_EQ(show.state.ResumeIndex, 2);
    EXPECT_EQ(show.state.StepBusy, 0);
    EXPECT_EQ(show.state.ShowAbort, 1);
    EXPECT_EQ(show.state.EffectSpeedTrim, 9);
    EXPECT_EQ(show.Shown(), Numbers{});
}

TEST(StepEntry, TheEffectSpeedFactorIsAlwaysTwo) {
    for (const int16_t trim : {1, 5, 10}) {
        Show show;
        show.state.EffectSpeedTrim = trim;
        show.state.ShowAbort = 1;
        show.Step(1);
        EXPECT_EQ(show.state.EffectSpeedTrim, 4);
        EXPECT_DOUBLE_EQ(show.state.EffectSpeedFactor, 2.0);
        EXPECT_EQ(show.state.ShowAbort, 0);
    }
}

struct SyncCase {
    int16_t mode;
    int16_t cdPlusLinkedWav, midiFlag, mp3Flag, listFlag;
    const char16_t* question;  // null: no wait
};

TEST(StepSync, WhichModesWaitForWhichSound) {
    const SyncCase cases[] = {
        {0, 1, 0, 0, 0, u"status wav mode"},
        {1, 1, 0, 0, 0, u"status wav mode"},
        {2, 1, 0, 0, 0, nullptr},
        {2, 0, 0, 0, 0, u"status wav mode"},
        {3, 1, 1, 1, 1, nullptr},
        {4, 1, 0, 0, 0, nullptr},
        {4, 1, 1, 0, 0, u"status wav_ren mode"},
        {5, 1, 1, 1, 1, u"status wav mode"},
        {6, 1, 0, 0, 0, u"status wav mode"},
        {6, 1, 0, 0, 1, u"status wav_ren mode"},
        {7, 1, 1, 1, 1, nullptr},
        {8, 1, 0, 0, 0, nullptr},
        {8, 1, 0, 1, 0, u"status wav_ren mode"},
        {9, 1, 0, 0, 0, u"status wav mode"},
    };
    for (const SyncCase& one : cases) {
        Show show;
        show.state.SoundMode = one.mode;
        show.state.CdPlusLinkedWav = one.cdPlusLinkedWav;
        show.state.MidiLinkedWavFlag = one.midiFlag;
        show.state.Mp3LinkedWavFlag = one.mp3Flag;
        show.state.SoundListCheck5 = one.listFlag;
        show.state.SoundPlaying = 1;
        show.state.SoundSyncFlag = 0;
        int playing = 2;
        show.sound.answer = [&](TextView command) -> Text {
            return one.question && command == one.question && playing-- > 0 ? u"playing on" : u"";
        };
        show.Step(2);
        // Two answers "playing" and one other: three passes.
        EXPECT_EQ(show.loop.sleeps, one.question ? (Numbers{10, 10, 10}) : Numbers{})
            << "mode " << one.mode;
        EXPECT_EQ(show.Shown(), Numbers{2});
    }
}

TEST(StepSync, WhatSwitchesTheWaitOff) {
    struct Switch {
        const char* what;
        void (*set)(Show&);
    };
    const Switch switches[] = {
        {"nothing plays", [](Show& show) { show.state.SoundPlaying = 0; }},
        {"not wanted", [](Show& show) { show.state.SoundSyncFlag = 1; }},
        {"left out once", [](Show& show) { show.state.SkipSyncWaitOnce = 1; }},
        {"by hand", [](Show& show) { show.form1.Command1.Enabled = true; }},
    };
    for (const Switch& one : switches) {
        Show show;
        show.state.SoundMode = 1;
        show.state.SoundPlaying = 1;
        show.state.SoundSyncFlag = 0;
        int playing = 5;
        show.sound.answer = [&](TextView) -> Text { return playing-- > 0 ? u"playing" : u""; };
        show.form1.Command1.Enabled = false;
        show.state.SlideIndex = 2;
        one.set(show);
        playback::RunSlideStep(show.app);
        EXPECT_TRUE(show.loop.sleeps.empty()) << one.what;
        EXPECT_EQ(show.state.SkipSyncWaitOnce, 0) << one.what;
        EXPECT_EQ(show.Shown(), Numbers{2}) << one.what;
    }
}

/// A running show whose second slide waits for a sound; that ends so late that a test has failed
/// by then.
struct SyncShow : Show {
    bool playing = true;
    SyncShow() {
        state.SoundMode = 1;
        state.SoundSyncFlag = 0;
        sound.answer = [this](TextView) -> Text { return playing ? u"playing" : u"stopped"; };
        loop.At(9000, [this] { playing = false; });
        Start();
        state.SoundPlaying = 1;
    }
};

TEST(StepSync, TheNextPictureComesWhenTheSoundHasEnded) {
    SyncShow show;
    show.loop.At(4995, [&] { show.playing = false; });
    show.loop.Run(4000);  // the tick of 3000 waits inside and runs over
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
    // The pass of 5000 asks before it pumps, so that of 5010 is the first to see the end.
    EXPECT_EQ(show.loop.Milliseconds(), 5020);
    EXPECT_EQ(show.loop.sleeps, Numbers(202, 10));
}

TEST(StepSync, PauseEndsTheStepAndThePictureComesWithTheNextStart) {
    SyncShow show;
    bool waited = false;
    show.loop.At(4000, [&] {
        waited = show.state.StepBusy == 1;
        show.Pause();
    });
    show.loop.Run(10000);
    EXPECT_TRUE(waited);
    EXPECT_EQ(show.Shown(), Numbers{1});
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_EQ(show.state.SlideIndex, 1) << "the slide on the screen";
    EXPECT_EQ(show.state.StepBusy, 0);
    EXPECT_FALSE(show.form1.Timer1.Enabled);
    EXPECT_EQ(show.Buttons(), "SX>F");
    show.playing = false;
    show.Start();
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
    EXPECT_EQ(show.state.ShowRunning, 1);
}

TEST(StepSync, StopEndsTheStep) {
    SyncShow show;
    show.loop.At(4000, [&] { show.Stop(); });
    show.loop.Run(10000);
    EXPECT_EQ(show.Shown(), Numbers{1});
    EXPECT_EQ(show.state.SlideIndex, 0);
    EXPECT_EQ(show.state.StopRequest, 1);
    EXPECT_EQ(show.state.StepBusy, 0);
    EXPECT_FALSE(show.form1.Timer1.Enabled);
    EXPECT_EQ(show.Buttons(), "SF");
}

TEST(StepSync, HandsOffWhileItWaits) {
    SyncShow show;
    show.loop.At(4000, [&] {
        show.Start();
        show.Previous();
        show.Next();
        EXPECT_EQ(show.state.SlideIndex, 2);
        EXPECT_EQ(show.state.ShowRunning, 1);
        show.playing = false;
    });
    show.loop.Run(5000);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
}

TEST(StepTelop, ThePictureWaitsUntilTheTextHasRunOut) {
    Show show;
    show.state.TelopRunning = 1;
    show.loop.At(35, [&] { show.state.TelopRunning = 0; });
    show.Step(2);
    // Pumps at 0, 10, 20, 30 and 40; the last one sees the end and still sleeps.
    EXPECT_EQ(show.loop.sleeps, Numbers(5, 10));
    EXPECT_EQ(show.Shown(), Numbers{2});
}

TEST(StepTelop, AJumpThatWasChosenCancelsTheText) {
    Show show;
    show.state.TelopRunning = 1;
    show.state.MacroJumpChosen = 1;
    for (model::Label* label : {&show.form1.Label1, &show.screen.Label1}) {
        label->Caption = Text(u"text");
        label->Visible = true;
    }
    show.screen.Timer1.Enabled = true;
    show.form1.Timer4.Enabled = true;
    show.Step(2);
    for (const model::Label* label : {&show.form1.Label1, &show.screen.Label1}) {
        EXPECT_EQ(label->Caption(), u"");
        EXPECT_FALSE(label->Visible);
    }
    EXPECT_FALSE(show.screen.Timer1.Enabled);
    EXPECT_FALSE(show.form1.Timer4.Enabled);
    EXPECT_EQ(show.state.TelopRunning, 0);
    EXPECT_TRUE(show.loop.sleeps.empty());
    EXPECT_EQ(show.Shown(), Numbers{2});
}

TEST(StepTelop, PauseEndsTheStepAndTheText) {
    Show show;
    show.Start();
    show.state.TelopRunning = 1;
    show.form1.Timer4.Enabled = true;
    show.loop.At(3500, [&] { show.Pause(); });
    show.loop.At(9000, [&] { show.state.TelopRunning = 0; });
    show.loop.Run(10000);
    EXPECT_EQ(show.Shown(), Numbers{1});
    EXPECT_EQ(show.state.TelopRunning, 0);
    EXPECT_FALSE(show.form1.Timer4.Enabled);
    EXPECT_EQ(show.state.StepBusy, 0);
    EXPECT_EQ(show.state.SlideIndex, 1);
    show.Start();
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
}

TEST(StepRandom, DrawsByRoundingToEven) {
    struct Draw {
        int count;
        double number;
        int slide;
    };
    const Draw draws[] = {
        {3, 0.0, 1},                     // 0.5 → 0, which becomes 1
        {3, 0.2, 1},                     // 1.1
        {3, 0.34, 2},                    // 1.52
        {3, 0.5, 2},                     // 2.0
        {3, 0.9, 3},                     // 3.2
        {3, 0.9999999, 3},               // 3.4999997
        {4, 0.25, 2},                    // 1.5 → 2
        {4, 0.5, 2},                     // 2.5 → 2
        {4, 0.75, 4},                    // 3.5 → 4
        {4, 0.7, 3},                     // 3.3
        {1, 0.0, 1},       {1, 0.5, 1},  // 1.0
        {1, 0.99, 1},      {1, 0.99999999999999989, 1},
    };
    for (const Draw& draw : draws) {
        Show show(draw.count);
        show.state.RandomFlag = 0;
        show.loop.randomNumbers = {draw.number};
        show.Step(1);
        EXPECT_EQ(show.Shown(), Numbers{draw.slide}) << draw.count << " × " << draw.number;
        EXPECT_EQ(show.state.SlideIndex, draw.slide);
    }
}

TEST(StepRandom, NotInALinkRunNotByHandNotInListOrder) {
    for (const int which : {0, 1, 2}) {
        Show show;
        show.state.RandomFlag = which == 0 ? 1 : 0;
        show.state.LinkRunning = which == 1 ? 1 : 0;
        show.loop.randomNumbers = {0.9};
        show.form1.Command1.Enabled = which == 2;
        show.state.SlideIndex = 2;
        playback::RunSlideStep(show.app);
        EXPECT_EQ(show.Shown(), Numbers{2}) << which;
        EXPECT_EQ(show.loop.randomNumbers.size(), 1u) << which;
    }
}

TEST(StepRandom, ThePositionRememberedIsTheOneBeforeTheDraw) {
    Show show;
    show.state.RandomFlag = 0;
    show.loop.randomNumbers = {0.9};
    show.Step(2);
    EXPECT_EQ(show.state.SlideIndex, 3);
    EXPECT_EQ(show.state.ResumeIndex, 2);
}

TEST(StepEnd, AnEmptyEntryEndsTheStepWithoutATrace) {
    Show show;
    show.form1.Timer1.Interval = 3000;
    show.windows.SetPointer(model::kPointerArrowBusy);
    show.Step(4);
    EXPECT_EQ(show.state.StepBusy, 0);
    EXPECT_EQ(show.form1.Timer1.Interval, 3000);
    EXPECT_TRUE(show.imaging.log.empty());
    EXPECT_EQ(show.windows.Pointer(), model::kPointerArrowBusy);
    EXPECT_EQ(show.state.SlideIndex, 4);
}

}  // namespace
}  // namespace playback_tests

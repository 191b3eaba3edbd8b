// What a step says became of it, and how the show goes on from there, by what set the step going.
#include "playback/go_on.h"

#include <gtest/gtest.h>

#include "show_support.h"

namespace playback_tests {
namespace {

using playback::Cause;
using playback::Outcome;

/// A show that runs, at slide 2, whose next step is run by hand of the test.
struct Running : Show {
    Running() {
        form1.Command1.Enabled = false;
        state.ShowRunning = 1;
        state.SlideIndex = 2;
        state.SlideListEnd = 4;
    }
    /// A linked sound plays that the step waits for; `act` happens in that wait.
    template <class Act>
    void DuringItsWait(Act act) {
        state.SoundMode = 1;
        state.SoundSyncFlag = 0;
        state.SoundPlaying = 1;
        sound.answer = [](TextView) -> Text { return u"playing"; };
        loop.At(50, act);
    }
    void RefuseThePicture() {
        Break(2);
        dialogs.answers = {platform::Answer::No};
    }
};

TEST(Outcome, SaysWhatBecameOfTheStep) {
    struct Case {
        Outcome outcome;
        void (*set)(Running&);
    };
    const Case cases[] = {
        {Outcome::Done, [](Running&) {}},
        {Outcome::Done, [](Running& s) { s.state.SlideList.Set(2, Text()); }},
        {Outcome::Skipped, [](Running& s) { s.PutOut(2); }},
        {Outcome::Paused, [](Running& s) { s.DuringItsWait([&s] { s.Pause(); }); }},
        {Outcome::Stopped, [](Running& s) { s.state.StopRequest = 1; }},
        {Outcome::Aborted, [](Running& s) { s.RefuseThePicture(); }},
        {Outcome::Over, [](Running& s) { s.DuringItsWait([&s] { s.Stop(); }); }},
        {Outcome::Over, [](Running& s) {
             s.DuringItsWait([&s] {
                 s.Stop();
                 s.Start();
             });
         }}};
    for (size_t i = 0; i < std::size(cases); ++i) {
        Running show;
        cases[i].set(show);
        EXPECT_EQ(playback::RunSlideStep(show.app), cases[i].outcome) << i;
    }
}

TEST(GoOn, MovesToTheNextSlideAndTimesIt) {
    for (const Cause cause :
         {Cause::Start, Cause::Tick, Cause::FullScreen, Cause::Box, Cause::Document}) {
        for (const bool out : {false, true}) {
            Running show;
            if (out) {
                show.PutOut(2);
            }
            EXPECT_EQ(playback::StepAndGoOn(show.app, cause),
                      out ? Outcome::Skipped : Outcome::Done);
            EXPECT_EQ(show.state.SlideIndex, 3) << static_cast<int>(cause);
            EXPECT_TRUE(show.form1.Timer1.Enabled) << static_cast<int>(cause);
        }
    }
}

TEST(GoOn, ByHandTheShowStandsStill) {
    Running show;
    show.state.ShowRunning = 0;
    EXPECT_EQ(playback::StepAndGoOn(show.app, Cause::Hand), Outcome::Done);
    EXPECT_EQ(show.Shown(), Numbers{2});
    EXPECT_EQ(show.state.SlideIndex, 2);
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_FALSE(show.form1.Timer1.Enabled);
}

TEST(GoOn, AnAbortEndsTheShowButByHand) {
    for (const Cause cause :
         {Cause::Start, Cause::Tick, Cause::FullScreen, Cause::Box, Cause::Document, Cause::Hand}) {
        const bool byHand = cause == Cause::Hand;
        const bool onScreen = cause != Cause::Start && cause != Cause::Tick && !byHand;
        Running show;
        if (onScreen) {
            show.screen.Load();
            show.GoFullScreen();
        }
        show.state.LinkRunning = cause == Cause::Document ? 1 : 0;
        show.RefuseThePicture();
        EXPECT_EQ(playback::StepAndGoOn(show.app, cause), Outcome::Aborted);
        EXPECT_EQ(show.state.StopRequest, byHand ? 0 : 1) << static_cast<int>(cause);
        EXPECT_EQ(show.state.ShowAbort, byHand ? 1 : 0) << static_cast<int>(cause);
        EXPECT_EQ(show.state.SlideIndex, byHand ? 2 : 0) << static_cast<int>(cause);
        EXPECT_FALSE(show.form1.Timer1.Enabled) << static_cast<int>(cause);
        EXPECT_FALSE(show.screen.Loaded) << static_cast<int>(cause);
    }
}

TEST(GoOn, AnotherShowThatBeganInTheStepIsLeftAlone) {
    Running show;
    show.DuringItsWait([&show] {
        show.Stop();
        show.sound.answer = nullptr;
        show.Start();
    });
    EXPECT_EQ(playback::StepAndGoOn(show.app, Cause::Tick), Outcome::Over);
    EXPECT_EQ(show.Shown(), Numbers{1});
    EXPECT_EQ(show.state.SlideIndex, 2);
    EXPECT_EQ(show.state.ShowRunning, 1);
    EXPECT_TRUE(show.form1.Timer1.Enabled);
}

TEST(GoOn, TheSoundOfTheShowStartsBeforeTheStepOrAfterItOrNotAtAll) {
    struct Case {
        Cause cause;
        bool starts, beforePicture;
    };
    for (const Case& one : {Case{Cause::Start, true, true}, Case{Cause::Tick, false, false},
                            Case{Cause::FullScreen, true, true}, Case{Cause::Box, true, false},
                            Case{Cause::Document, true, false}, Case{Cause::Hand, false, false}}) {
        Running show;
        show.state.ShowRunning = one.cause == Cause::Hand ? 0 : 1;
        show.state.SoundMode = 3;
        show.state.WavFile = u"C:\\s\\a.wav";
        show.files.Put(show.state.WavFile, "sound");
        bool pictureStood = false;
        show.sound.answer = [&](TextView command) -> Text {
            pictureStood = command.starts_with(u"open") ? !show.Shown().empty() : pictureStood;
            return {};
        };
        playback::StepAndGoOn(show.app, one.cause);
        EXPECT_EQ(show.CommandsFrom(u"open").size(), one.starts ? 1u : 0u)
            << static_cast<int>(one.cause);
        EXPECT_EQ(pictureStood, one.starts && !one.beforePicture) << static_cast<int>(one.cause);
    }
}

}  // namespace
}  // namespace playback_tests

// The show's clock: end of the list, repeat, schedules over passes, a document that changes.
#include <gtest/gtest.h>

#include "document/show_document.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "show_support.h"
#include "sound/cd.h"

namespace playback_tests {
namespace {

TEST(Tick, RepeatsFromSlide1InTheSameTick) {
    Show show;
    show.Start();
    show.loop.Run(8999);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2, 3}));
    show.loop.Run(1);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2, 3, 1}));
    EXPECT_EQ(show.state.SlideIndex, 2);
    EXPECT_EQ(show.state.ShowRunning, 1);
    EXPECT_EQ(show.Buttons(), "PXF");
}

TEST(Tick, WithoutRepeatASingleSlideEndsAfterOneInterval) {
    Show show(1);
    show.state.RepeatFlag = 1;
    show.state.DocumentPath = u"C:\\show\\a.kvs";
    show.Start();
    show.state.SoundListPos = 2;
    show.state.CdProgramPosition = 2;
    show.loop.Run(2999);
    EXPECT_EQ(show.state.ShowRunning, 1);
    show.loop.Run(1);
    EXPECT_EQ(show.Shown(), Numbers{1});
    EXPECT_EQ(show.form1.Caption(), u"ｽﾗｲﾄﾞ - C:\\show\\a.kvs");
    EXPECT_EQ(show.state.StepBusy, 0);
    EXPECT_EQ(show.state.StopRequest, 1);
    EXPECT_EQ(show.state.StartLatch, 0);
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_EQ(show.state.SlideIndex, 0);
    EXPECT_EQ(show.state.SoundListPos, 0);
    EXPECT_EQ(show.state.CdProgramPosition, 0);
    EXPECT_TRUE(show.PreviewEmpty());
    EXPECT_EQ(show.Buttons(), "SF");
    EXPECT_EQ(show.ToolButtons(), "111");
    EXPECT_FALSE(show.form1.Timer1.Enabled);
    EXPECT_TRUE(show.MenusOn());
    show.Start();
    EXPECT_EQ(show.Shown(), (Numbers{1, 1}));
}

TEST(Tick, TheEndTakesTheFullScreenDown) {
    Show show(1);
    show.state.RepeatFlag = 1;
    show.state.AlwaysFullFlag = 0;
    show.Start();
    ASSERT_TRUE(show.screen.Visible);
    show.form1.Picture1.SetSize(15, 15);
    show.loop.Run(3000);
    EXPECT_FALSE(show.screen.Loaded);
    EXPECT_TRUE(show.form1.Visible);
    EXPECT_EQ(show.form1.Picture1.Width, show.form1.Width - 600);
    EXPECT_EQ(show.form1.Picture1.Height, 6750);  // 8800 − 1450 − (8800 − 8200)
}

TEST(Tick, TheEndOfACdProgrammeEndsThePass) {
    for (const int16_t repeat : {0, 1}) {
        Show show;
        show.state.RepeatFlag = repeat;
        show.Start();
        show.loop.Run(2999);
        show.state.CdProgramEnded = 1;
        show.loop.Run(1);
        EXPECT_EQ(show.state.CdProgramEnded, 0);
        EXPECT_EQ(show.Shown(), repeat == 0 ? (Numbers{1, 1}) : Numbers{1});
        EXPECT_EQ(show.state.ShowRunning, repeat == 0 ? 1 : 0);
    }
}

TEST(Tick, DoesNothingWithoutAList) {
    for (const int16_t end : {0, 1}) {  // a new document; a list that lost its last slide
        Show show(0);
        show.state.RepeatFlag = 1;
        show.state.SlideListEnd = end;
        show.state.SlideIndex = end;
        show.form1.Timer1.Interval = 1;
        show.form1.Timer1.Enabled = true;
        show.loop.Run(10);
        EXPECT_EQ(show.Shown(), Numbers{});
        EXPECT_EQ(show.state.StopRequest, 0) << "no end of a show that never was";
        EXPECT_EQ(show.form1.Timer1.Interval, 3000);
    }
}

TEST(Tick, UndoesTheStepsShortIntervals) {
    Show show;
    show.PutOut(2);
    show.Start();
    show.loop.Run(3000);
    EXPECT_EQ(show.form1.Timer1.Interval, 1);
    EXPECT_EQ(show.Shown(), Numbers{1});
    show.loop.Run(1);
    EXPECT_EQ(show.Shown(), (Numbers{1, 3}));
    EXPECT_EQ(show.form1.Timer1.Interval, 3000);
}

TEST(Tick, AShowWithEverythingOutOfScheduleCyclesWithoutShowing) {
    Show show;
    for (int slide = 1; slide <= 3; ++slide) {
        show.PutOut(slide);
    }
    show.Start();
    show.loop.Run(10);
    EXPECT_EQ(show.Shown(), Numbers{});
    // START's own and one a millisecond.
    EXPECT_EQ(show.Skipped(), (Numbers{1, 2, 3, 1, 2, 3, 1, 2, 3, 1, 2}));
    EXPECT_EQ(show.state.ShowRunning, 1);
}

TEST(Tick, AllOutOfScheduleWithoutRepeatEnds) {
    Show show;
    for (int slide = 1; slide <= 3; ++slide) {
        show.PutOut(slide);
    }
    show.state.RepeatFlag = 1;
    show.Start();
    show.loop.Run(10);
    EXPECT_EQ(show.Skipped(), (Numbers{1, 2, 3}));
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_EQ(show.Buttons(), "SF");
}

TEST(Tick, ASlideThatCameIntoItsTimeShowsOnALaterPass) {
    Show show;
    show.Schedule(2, u"2026/01/01 12:01");
    show.Start();
    // A pass takes 3000 + 1 + 3000 ms. That of 60010 is the first to begin at 12:01 or later.
    show.loop.Run(63009);
    Numbers shown = show.Shown();
    EXPECT_EQ(std::count(shown.begin(), shown.end(), 2), 0);
    EXPECT_EQ(std::count(shown.begin(), shown.end(), 1), 11);
    show.loop.Run(1);
    shown = show.Shown();
    EXPECT_EQ(shown.back(), 2);
}

TEST(Tick, TheClockStandsWhileAStepRuns) {
    Show show;
    show.Start();
    show.state.TelopRunning = 1;
    show.loop.At(5000, [&] {
        EXPECT_FALSE(show.form1.Timer1.Enabled);
        show.state.TelopRunning = 0;
    });
    show.loop.Run(8009);
    // The step ended at 5010; the interval runs from there.
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
    show.loop.Run(1);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2, 3}));
}

TEST(Tick, RandomOrderGoesOnForEver) {
    Show show;
    show.state.RandomFlag = 0;
    show.loop.randomNumbers = {0.9, 0.9, 0.5, 0.0};
    show.Start();
    show.loop.Run(9000);
    // 3.2, 3.2, 2.0 and 0.5: the same slide may come twice, the last one ends no show.
    EXPECT_EQ(show.Shown(), (Numbers{3, 3, 2, 1}));
}

TEST(Tick, AFailureThatIsNotForgivenStops) {
    Show show;
    show.Break(2);
    show.Start();
    show.dialogs.answers = {platform::Answer::No};
    show.loop.Run(60000);
    EXPECT_EQ(show.dialogs.messages.size(), 1u);
    EXPECT_EQ(show.state.ShowAbort, 0);
    EXPECT_EQ(show.state.StopRequest, 1);
    EXPECT_EQ(show.state.SlideIndex, 0);
    EXPECT_EQ(show.Buttons(), "SF");
    EXPECT_EQ(show.form3.List1.ListCount(), 3);
    EXPECT_EQ(show.Shown(), Numbers{1});
}

constexpr const char16_t* kDocument = u"C:\\show\\a.kvs";

/// A running show of a document on disk.
struct DocumentShow : Show {
    DocumentShow() : Show(3) {
        document::WriteShowDocument(app, kDocument);
        Start();
    }
    /// Somebody else stores a show of these slides under the same name.
    void Change(const Texts& paths) {
        Show other(0);
        for (const Text& path : paths) {
            other.AddSlide(path);
            PutPicture(path, 10, 10);
        }
        document::WriteShowDocument(other.app, kDocument);
        files.Put(kDocument, other.files.Get(kDocument)->content);
    }
};

TEST(TickDocument, AnUnchangedOneIsNotReadAgain) {
    DocumentShow show;
    show.files.read.clear();
    show.loop.Run(6000);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2, 3}));
    EXPECT_EQ(std::count(show.files.read.begin(), show.files.read.end(), Text(kDocument)), 0);
}

TEST(TickDocument, AChangedOneStartsOverInTheSameTick) {
    DocumentShow show;
    show.loop.Run(3000);
    show.Change({u"C:\\new\\x.png", u"C:\\new\\y.png"});
    show.loop.Run(3000);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2, 1}));
    EXPECT_EQ(show.state.CurrentPath, u"C:\\new\\x.png");
    EXPECT_EQ(show.state.SlideListEnd, 3);
    EXPECT_EQ(show.state.DocumentFileDate, platform::DateTimeText(show.files.Get(kDocument)->date));
    show.loop.Run(3000);
    EXPECT_EQ(show.state.CurrentPath, u"C:\\new\\y.png") << "read once";
}

TEST(TickDocument, AChangedOneThatLeavesTheCdStopsIt) {
    DocumentShow show;
    show.state.SoundMode = 2;
    show.sound.cd.Insert({60, 60});
    sound::StartCd(show.app);
    show.Change({u"C:\\new\\x.png"});  // without sound
    show.loop.Run(3000);
    EXPECT_EQ(show.state.SoundMode, 7);
    EXPECT_EQ(show.CommandsFrom(u"close cdaudio").size(), 1u);
}

TEST(TickDocument, AVanishedOneAndNoneAreNoHindrance) {
    DocumentShow vanished;
    vanished.files.Remove(kDocument);
    vanished.loop.Run(6000);
    EXPECT_EQ(vanished.Shown(), (Numbers{1, 2, 3}));
    EXPECT_TRUE(vanished.dialogs.messages.empty());

    DocumentShow none;
    none.state.DocumentPath.clear();
    none.loop.Run(6000);
    EXPECT_EQ(none.Shown(), (Numbers{1, 2, 3}));
    EXPECT_TRUE(none.dialogs.messages.empty());
}

TEST(TickDocument, OneThatCannotBeReadTellsOnceAndTheListGoesOn) {
    DocumentShow show;
    show.files.Put(kDocument, "no show\r\n");
    show.loop.Run(6000);
    ASSERT_EQ(show.dialogs.messages.size(), 1u);
    EXPECT_EQ(show.dialogs.messages[0].title, u"ファイルを開く");
    EXPECT_EQ(show.Shown(), (Numbers{1, 1, 2}));
}

TEST(TickDocument, OneThatIsRefusedEndsNoShowWhoseFirstSlideIsOutOfSchedule) {
    DocumentShow show;
    show.loop.Run(1000);
    show.state.ScheduleTo.Set(1, u"2000/01/01 00:00");
    show.files.Put(kDocument, "no show\r\n");
    show.loop.Run(3000);
    EXPECT_EQ(show.dialogs.messages.size(), 1u);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
    EXPECT_EQ(show.state.ShowRunning, 1);
}

}  // namespace
}  // namespace playback_tests

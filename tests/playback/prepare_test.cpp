// Which pictures are asked for before their slides.
#include "playback/prepare.h"

#include <gtest/gtest.h>

#include "full_screen_support.h"
#include "model/windows/control_box.h"
#include "model/windows/main_window.h"
#include "text/paths.h"

namespace playback_tests {
namespace {

using platform::Size;

/// Names of what is wanted, the most urgent first: "2.png 1.png".
std::string Wanted(const Show& show) {
    std::string names;
    for (const platform::Wanted& one : show.imaging.wanted) {
        names += (names.empty() ? "" : " ") + text::ToUtf8(text::BareName(one.path));
    }
    return names;
}

/// Size to which the most urgent one is fitted when its own is 4000 × 3000.
Size FittedOf(const Show& show) {
    return show.imaging.wanted.empty() ? Size{} : show.imaging.wanted[0].fit({4000, 3000});
}

TEST(PrepareShow, TheNextSlideWhileOneStands) {
    Show show(3);
    show.Start();
    EXPECT_EQ(Wanted(show), "2.png");
    show.loop.Run(3000);
    EXPECT_EQ(Wanted(show), "3.png");
    show.loop.Run(3000);
    EXPECT_EQ(Wanted(show), "1.png") << "a repeating show goes on with its first";
}

TEST(PrepareShow, NothingAfterTheLastOfAShowThatEnds) {
    Show show(2);
    show.state.RepeatFlag = 1;
    show.Start();
    EXPECT_EQ(Wanted(show), "2.png");
    show.loop.Run(3000);
    EXPECT_EQ(Wanted(show), "");
}

TEST(PrepareShow, NothingOverTheBorderOfALinkedShow) {
    Show show(2);
    show.state.LinkRunning = 1;
    show.state.ShowRunning = 1;
    show.Step(1);
    EXPECT_EQ(Wanted(show), "2.png");
    show.Step(2);
    EXPECT_EQ(Wanted(show), "");
}

TEST(PrepareShow, ThePathIsThatOfTheLoad) {
    Show show(1);
    show.PutPicture(u"C:\\app\\plain.png", 10, 10);
    show.AddSlide(u"plain.png");
    show.Start();
    ASSERT_EQ(show.imaging.wanted.size(), 1u);
    EXPECT_EQ(show.imaging.wanted[0].path, u"C:\\app\\plain.png");
    EXPECT_EQ(show.state.SlideList(2), u"plain.png") << "the list is left alone";
}

TEST(PrepareShow, SlidesOutOfScheduleArePassedOver) {
    Show show(5);
    show.PutOut(2);
    show.Schedule(3, u"           13:00");
    show.Start();
    EXPECT_EQ(Wanted(show), "4.png") << "at noon the third has not begun";
    EXPECT_EQ(show.trace.Of("skip").size(), 0u);
}

TEST(PrepareShow, ANewPassComparesSchedulesWithTheClock) {
    Show show(3);
    // Until a second after the start: on show in the first pass, gone in the second.
    show.Schedule(1, Text(16, u' '), u"2026/01/01 12:00");
    show.Start();
    EXPECT_EQ(show.Shown(), Numbers{1});
    show.loop.Run(6000);
    EXPECT_EQ(Wanted(show), "2.png");
    show.loop.Run(3001);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2, 3, 2}));
}

TEST(PrepareShow, NothingWhereEverySlideIsOutOfSchedule) {
    Show show(3);
    show.Start();
    for (const int slide : {1, 2, 3}) {
        show.PutOut(slide);
    }
    show.Step(1);
    playback::PrepareAround(show.app, 1);
    EXPECT_EQ(Wanted(show), "");
}

TEST(PrepareShow, ThePictureAfterAVideoIsAskedForBeforeItPlays) {
    Show show(0);
    show.AddSlide(u"C:\\pic\\a.mp4");
    show.files.Put(u"C:\\pic\\a.mp4", "film");
    show.AddPicture();
    std::string during = "nothing";
    show.loop.At(1000, [&] { during = Wanted(show); });
    show.Start();
    EXPECT_EQ(during, "2.png");
    show.loop.Run(200);
    EXPECT_EQ(show.Shown(), Numbers{2});
    EXPECT_EQ(Wanted(show), "2.png") << "the only picture";
}

TEST(PrepareShow, RandomOrderAsksForNothingAndDrawsTheSame) {
    Show show(5);
    show.Start();
    show.state.RandomFlag = 0;
    show.Step(2);
    EXPECT_EQ(Wanted(show), "");
    Show linked(3);
    linked.state.RandomFlag = 0;
    linked.state.LinkRunning = 1;
    linked.Step(1);
    EXPECT_EQ(Wanted(linked), "2.png") << "a run over a link list keeps the order";
}

TEST(PrepareShow, NoRandomNumberIsDrawn) {
    for (const int16_t overlaySize : {0, 5}) {
        Show show(3);
        show.GoFullScreen();
        show.state.OverlaySize = overlaySize;
        const double next = fakes::FakePlatform().loop.Rnd();
        playback::PrepareAround(show.app, 2);
        EXPECT_EQ(Wanted(show), "3.png 1.png");
        EXPECT_EQ(show.loop.Rnd(), next);
    }
}

TEST(PrepareShow, NothingOfTheShowChanges) {
    Show show(3);
    show.Start();
    const size_t lines = show.trace.lines.size();
    const size_t log = show.imaging.log.size();
    const model::ShowState before = show.state;
    playback::PrepareAround(show.app, 2);
    playback::PrepareStart(show.app, false);
    EXPECT_EQ(show.trace.lines.size(), lines);
    EXPECT_EQ(show.imaging.log.size(), log) << "nothing is loaded";
    EXPECT_TRUE(show.dialogs.messages.empty());
    for (const model::RunField& field : model::RunFields()) {
        EXPECT_EQ(model::ReadField(show.state, field.field), model::ReadField(before, field.field))
            << field.name;
    }
    EXPECT_EQ(show.state.ShowDateTime, before.ShowDateTime);
}

TEST(PreparePause, ThePreviousSlideTooWhileTheShowIsPaused) {
    Show show(4);
    show.Start();
    show.loop.Run(3000);
    EXPECT_EQ(Wanted(show), "3.png");
    show.Pause();
    EXPECT_EQ(Wanted(show), "3.png 1.png");
    show.Next();
    EXPECT_EQ(Wanted(show), "4.png 2.png");
    show.Previous();
    show.Previous();
    EXPECT_EQ(Wanted(show), "2.png") << "there is none before the first";
    show.Start();
    EXPECT_EQ(Wanted(show), "3.png") << "START goes on with the second";
}

TEST(PreparePause, OverAVideoAndASlideOutOfSchedule) {
    Show show(1);
    show.AddSlide(u"C:\\pic\\a.mp4");
    show.AddPicture();
    show.AddPicture();
    show.PutOut(3);
    show.state.ShowRunning = 0;
    show.Step(4);
    EXPECT_EQ(Wanted(show), "1.png 1.png") << "it comes next and came before";
}

TEST(PrepareFit, IsThatOfTheSettings) {
    Show show(2);
    show.GoFullScreen();
    show.state.SizeAdjust = 0;
    playback::PrepareAround(show.app, 1);
    EXPECT_EQ(FittedOf(show), (Size{1440, 1080}));
    show.state.SizeAdjust = 1;
    playback::PrepareAround(show.app, 1);
    EXPECT_EQ(FittedOf(show), (Size{1920, 1440}));
    show.state.SizeAdjust = 2;
    playback::PrepareAround(show.app, 1);
    EXPECT_EQ(FittedOf(show), Size{}) << "whole";
    show.state.SizeAdjust = 0;
    show.state.OverlaySize = 5;
    playback::PrepareAround(show.app, 1);
    EXPECT_EQ(FittedOf(show), (Size{1008, 756})) << "0.7 of the screen is the most it can be";
    show.state.PictureScale = 0.5;
    playback::PrepareAround(show.app, 1);
    EXPECT_EQ(FittedOf(show), (Size{720, 540}));
    show.state.FullScreenActive = 0;
    show.form1.Picture1.SetSize(4000 * 15, 300 * 15);
    playback::PrepareAround(show.app, 1);
    EXPECT_EQ(FittedOf(show), (Size{400, 300}));
}

TEST(PrepareFit, HoldsItsValues) {
    platform::FitFunction fit;
    {
        Show show(2);
        show.GoFullScreen();
        show.state.SizeAdjust = 0;
        playback::PrepareAround(show.app, 1);
        fit = show.imaging.wanted.at(0).fit;
        show.state.SizeAdjust = 2;
    }
    EXPECT_EQ(fit({4000, 3000}), (Size{1440, 1080}));
}

TEST(PrepareFit, ASizeThatAMacroSetCountsForTheNextSlide) {
    Show show(2);
    show.GoFullScreen();
    show.state.SizeAdjust = 0;
    show.state.ShowEffect = 11;
    show.state.TextMacroFlag = 0;
    show.PutText(u"C:\\pic\\1.txt", u"PicResize=50\r\n");
    show.Step(1);
    ASSERT_EQ(show.state.PictureScale, 0.5);
    EXPECT_EQ(FittedOf(show), (Size{720, 540}));
}

TEST(PrepareFit, FollowsTheShowIntoTheFullScreenAndBack) {
    Show show(3);
    show.state.SizeAdjust = 0;
    show.state.FullStartConfirm = 1;
    show.Start();
    const Size inWindow = FittedOf(show);
    ASSERT_LT(inWindow.height, 1080);
    show.form1.Command4.Click();
    EXPECT_EQ(Wanted(show), "2.png");
    EXPECT_EQ(FittedOf(show), (Size{1440, 1080}));
    show.screen.Unload();
    EXPECT_EQ(show.state.ShowRunning, 1);
    EXPECT_EQ(Wanted(show), "2.png");
    EXPECT_EQ(FittedOf(show), inWindow);
}

TEST(PrepareFit, FollowsAMonitorThatChanges) {
    Show show(3);
    StartInScreen(show);
    show.loop.Run(1);
    show.state.SizeAdjust = 0;
    show.monitors.monitors = {{0, 0, 1280, 1024}};
    show.monitors.onChanged();
    EXPECT_EQ(Wanted(show), "2.png");
    EXPECT_EQ(FittedOf(show), (Size{1280, 960}));
}

TEST(PrepareEnd, StopAndTheEndOfTheListLetEverythingGo) {
    Show stopped(3);
    stopped.Start();
    stopped.Stop();
    EXPECT_EQ(Wanted(stopped), "");
    Show ended(2);
    ended.state.RepeatFlag = 1;
    ended.Start();
    ended.Pause();
    ended.Previous();
    EXPECT_NE(Wanted(ended), "");
    ended.Start();
    ended.loop.Run(6001);
    EXPECT_EQ(ended.state.ShowRunning, 0);
    EXPECT_EQ(Wanted(ended), "");
}

TEST(PrepareEnd, ClosingTheFullScreenLetsEverythingGo) {
    Show show(3);
    StartInScreen(show);
    show.loop.Run(1);
    EXPECT_EQ(Wanted(show), "2.png");
    show.windows.slidescreen2.Command1.Click();
    EXPECT_EQ(show.state.SlideIndex, 0);
    EXPECT_EQ(Wanted(show), "");
}

TEST(PrepareStart, TheFirstSlideForWhereStartGoes) {
    Show show(3);
    show.state.SizeAdjust = 0;
    playback::PrepareStart(show.app, false);
    EXPECT_EQ(Wanted(show), "1.png");
    EXPECT_LT(FittedOf(show).height, 1080);
    playback::PrepareStart(show.app, true);
    EXPECT_EQ(FittedOf(show), (Size{1440, 1080}));
    show.state.AlwaysFullFlag = 0;
    playback::PrepareStart(show.app, false);
    EXPECT_EQ(FittedOf(show), (Size{1440, 1080}));
    show.PutOut(1);
    playback::PrepareStart(show.app, false);
    EXPECT_EQ(Wanted(show), "2.png");
}

TEST(PrepareStart, WhereTheShowWasLeft) {
    Show show(3);
    show.state.StartOption = 1;
    show.state.ResumeIndex = 2;
    playback::PrepareStart(show.app, false);
    EXPECT_EQ(Wanted(show), "3.png");
    show.state.ResumeIndex = 3;
    playback::PrepareStart(show.app, false);
    EXPECT_EQ(Wanted(show), "1.png") << "there is nothing after the last";
}

TEST(PrepareStart, NothingInRandomOrderAndBeforeALinkRun) {
    Show show(3);
    playback::PrepareStart(show.app, false);
    show.state.RandomFlag = 0;
    playback::PrepareStart(show.app, false);
    EXPECT_EQ(Wanted(show), "");
    show.state.RandomFlag = 1;
    show.state.LinkRunning = 1;
    playback::PrepareStart(show.app, false);
    EXPECT_EQ(Wanted(show), "");
}

}  // namespace
}  // namespace playback_tests

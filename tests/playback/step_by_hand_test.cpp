// Steps by hand of a paused show, in the main window and by the control box: what they meet must
// never leave a show that nothing can move any more.
#include <gtest/gtest.h>

#include "full_screen_support.h"
#include "model/windows/control_box.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"

namespace playback_tests {
namespace {

/// Paused on the second of three slides.
struct Paused : Show {
    enum Where { InWindow, InBox };
    Where where;

    explicit Paused(Where place) : where(place) {
        state.ControlBoxFlag = 0;
        if (where == InBox) {
            StartInScreen(*this);
        } else {
            Start();
        }
        loop.Run(3500);
        (where == InBox ? windows.slidescreen2.Command3 : form1.Command2).Click();
    }
    void Back() { (where == InBox ? windows.slidescreen2.Command4 : form1.Command5).Click(); }
    void On() { (where == InBox ? windows.slidescreen2.Command5 : form1.Command7).Click(); }
    void GoOn() { (where == InBox ? windows.slidescreen2.Command2 : form1.Command1).Click(); }
    bool CanGoBack() const {
        return (where == InBox ? windows.slidescreen2.Command4 : form1.Command5).Enabled;
    }
    bool CanGoOn() const {
        return (where == InBox ? windows.slidescreen2.Command5 : form1.Command7).Enabled;
    }
    void Replace(int slide, const Text& path) {
        form3.List1.SetRow(slide - 1, path);
        state.SlideList.Set(slide, path);
    }
};

constexpr Paused::Where kPlaces[] = {Paused::InWindow, Paused::InBox};

TEST(StepByHand, OntoAVideoLeavesTheShowPausedAndFree) {
    for (const auto place : kPlaces) {
        for (const bool missing : {false, true}) {
            Paused show(place);
            show.Replace(3, u"C:\\pic\\film.mp4");
            if (!missing) {
                show.files.Put(u"C:\\pic\\film.mp4", "film");
            }
            show.On();
            EXPECT_EQ(show.state.SlideIndex, 3);
            EXPECT_EQ(show.state.StepBusy, 0);
            EXPECT_EQ(show.dialogs.messages.size(), missing ? 1u : 0u);
            EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
            EXPECT_FALSE(show.form1.Timer1.Enabled);
            EXPECT_TRUE(show.CanGoBack());
            EXPECT_FALSE(show.CanGoOn());
            show.Back();
            EXPECT_EQ(show.Shown(), (Numbers{1, 2, 2})) << place << missing;
            show.On();
            show.GoOn();  // after the last slide: from the top after one interval
            EXPECT_EQ(show.state.ShowRunning, 1);
            show.loop.Run(3000);
            EXPECT_EQ(show.Shown(), (Numbers{1, 2, 2, 1})) << place << missing;
        }
    }
}

TEST(StepByHand, FromAVideoTheShowMovesToTheFullScreen) {
    Paused show(Paused::InWindow);
    show.Replace(3, u"C:\\pic\\film.mp4");
    show.files.Put(u"C:\\pic\\film.mp4", "film");
    show.On();
    show.form1.Command4.Click();
    EXPECT_TRUE(show.screen.Visible);
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_EQ(show.state.SlideIndex, 3);
}

TEST(StepByHand, TheVideoOfARunningShowHoldsPauseBackForItsShortTick) {
    Show show;
    show.files.Put(u"C:\\pic\\film.mp4", "film");
    show.form3.List1.SetRow(0, u"C:\\pic\\film.mp4");
    show.state.SlideList.Set(1, u"C:\\pic\\film.mp4");
    show.Start();
    EXPECT_EQ(show.state.StepBusy, 1);
    EXPECT_EQ(show.form1.Timer1.Interval, 100);
    show.Pause();
    EXPECT_EQ(show.state.ShowRunning, 1);
    show.loop.Run(100);
    EXPECT_EQ(show.Shown(), Numbers{2});
    EXPECT_EQ(show.state.StepBusy, 0);
}

TEST(StepByHand, ASlideOutOfScheduleAfterAVideoFreesPause) {
    Show show(2);
    show.files.Put(u"C:\\pic\\film.mp4", "film");
    show.form3.List1.SetRow(0, u"C:\\pic\\film.mp4");
    show.state.SlideList.Set(1, u"C:\\pic\\film.mp4");
    show.PutOut(2);
    show.Start();
    show.loop.Run(100);
    EXPECT_EQ(show.Skipped(), Numbers{2});
    EXPECT_EQ(show.state.StepBusy, 0);
    show.Pause();
    EXPECT_EQ(show.state.ShowRunning, 0);
}

TEST(StepByHand, OntoAFailingPictureGoesOnFromWhereItWas) {
    for (const auto place : kPlaces) {
        Paused show(place);
        show.Break(3);
        show.On();
        EXPECT_EQ(show.state.SlideIndex, 2);
        EXPECT_EQ(show.state.SlideListEnd, 3);
        EXPECT_FALSE(show.CanGoOn());
        show.Back();
        EXPECT_EQ(show.Shown(), (Numbers{1, 2, 1})) << place;
        EXPECT_FALSE(show.CanGoBack());
        show.GoOn();
        EXPECT_EQ(show.Shown(), (Numbers{1, 2, 1, 2})) << place;
    }
}

TEST(StepByHand, BackOntoAFailingFirstPictureLeavesNothingBeforeIt) {
    for (const auto place : kPlaces) {
        Paused show(place);
        show.Break(1);
        show.Back();
        EXPECT_EQ(show.state.SlideIndex, 0);
        EXPECT_FALSE(show.CanGoBack()) << place;
        show.On();
        EXPECT_EQ(show.state.CurrentPath, Show::PathOf(2)) << place;
        EXPECT_EQ(show.state.SlideIndex, 1);
    }
}

TEST(StepByHand, AListThatLosesItsLastPictureEndsTheShow) {
    for (const auto place : kPlaces) {
        Paused show(place);
        for (const int slide : {1, 2, 3}) {
            show.Break(slide);
        }
        show.state.ListErrorDelete = 1;
        show.On();    // 3
        show.Back();  // 1
        show.On();    // the one that is left
        EXPECT_EQ(show.form3.List1.ListCount(), 0);
        EXPECT_FALSE(show.screen.Loaded);
        EXPECT_TRUE(show.form1.Visible);
        EXPECT_EQ(show.Buttons(), "") << place;
        EXPECT_EQ(show.ToolButtons(), "111");
        EXPECT_TRUE(show.FileEntriesShown()) << "the window would be dead";
        EXPECT_TRUE(show.MenusOn());
        EXPECT_EQ(show.state.ShowAbort, 0);
        EXPECT_EQ(show.state.StartLatch, 0);
    }
}

TEST(StepByHand, AScrollingTextGivesWay) {
    for (const auto place : kPlaces) {
        Paused show(place);
        show.state.TelopRunning = 1;
        show.On();
        EXPECT_EQ(show.Shown(), (Numbers{1, 2, 3})) << place;
        EXPECT_EQ(show.state.TelopRunning, 0);
    }
}

TEST(StepByHand, StopWhileItsMacroWaitsEndsTheShow) {
    Paused show(Paused::InWindow);
    show.state.TextMacroFlag = 0;
    show.files.Put(u"C:\\pic\\3.txt", "MENU6(1,\"x\")\r\n");
    show.loop.After(1000, [&] { show.Stop(); });
    show.On();
    EXPECT_EQ(show.Buttons(), "SF");
    EXPECT_EQ(show.state.SlideIndex, 0);
    EXPECT_EQ(show.state.StepBusy, 0);
}

TEST(StepByHand, LeavingTheFullScreenMeanwhileKeepsTheShowPausedInTheWindow) {
    Paused show(Paused::InBox);
    show.state.TextMacroFlag = 0;
    show.files.Put(u"C:\\pic\\3.txt", "MENU6(1,\"x\")\r\n");
    show.loop.After(1000, [&] { show.screen.KeyDown(27); });
    show.On();
    EXPECT_FALSE(show.screen.Loaded);
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_EQ(show.state.SlideIndex, 3);
    EXPECT_EQ(show.Buttons(), "SX<F");
}

}  // namespace
}  // namespace playback_tests

// The control box of a show in full screen: its place, its buttons, what each of them does.
#include <gtest/gtest.h>

#include "model/controls.h"
#include "model/windows/control_box.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "show_support.h"

namespace playback_tests {
namespace {

/// A show in full screen with the box up and the first slide on the screen.
class BoxShow : public Show {
public:
    model::Slidescreen2& box = windows.slidescreen2;

    explicit BoxShow(int slides = 3) : Show(slides) {
        state.ControlBoxFlag = 0;
        state.FullStartConfirm = 1;
        form1.Command4.Click();
    }
    /// Close, START, PAUSE, previous, next: enabled ones as letters.
    std::string BoxButtons() const {
        std::string letters;
        const std::pair<const model::Button&, char> buttons[] = {{box.Command1, 'X'},
                                                                 {box.Command2, 'S'},
                                                                 {box.Command3, 'P'},
                                                                 {box.Command4, '<'},
                                                                 {box.Command5, '>'}};
        for (const auto& [button, letter] : buttons) {
            letters += button.Enabled ? std::string(1, letter) : std::string();
        }
        return letters;
    }
    void Close() { box.Command1.Click(); }
    void BoxStart() { box.Command2.Click(); }
    void BoxPause() { box.Command3.Click(); }
    void BoxPrevious() { box.Command4.Click(); }
    void BoxNext() { box.Command5.Click(); }
};

TEST(ControlBox, CannotBeClosed) {
    BoxShow show;
    EXPECT_FALSE(show.box.Unload());
    EXPECT_TRUE(show.box.Visible);
}

TEST(ControlBox, StandsInItsCornerOfTheMonitorOfTheMainWindow) {
    for (const int16_t corner : {0, 1}) {
        Show show;
        show.monitors.monitors = {{0, 0, 1920, 1080}, {1920, 0, 1280, 1024}};
        show.monitors.ofMainWindow = 1;
        show.state.ControlBoxFlag = 0;
        show.state.ControlBoxPos = corner;
        show.form1.Command4.Click();
        const model::Slidescreen2& box = show.windows.slidescreen2;
        ASSERT_GT(box.Width(), 0);
        ASSERT_GT(box.Height(), 0);
        EXPECT_EQ(box.Left + box.Width, 48000);  // (1920 + 1280) × 15
        EXPECT_EQ(corner == 0 ? box.Top() : box.Top + box.Height, corner == 0 ? 0 : 15360);
    }
}

TEST(ControlBox, StaysAwayWhenItIsNotWanted) {
    Show show;
    show.state.ControlBoxFlag = 1;
    show.form1.Command4.Click();
    show.loop.Run(4000);
    EXPECT_FALSE(show.windows.slidescreen2.Visible);
}

TEST(ControlBox, TakesTheMainWindowsButtonsWhenItComesUp) {
    BoxShow show;
    for (int mask = 0; mask < 32; ++mask) {
        show.box.Hide();
        show.form1.Command3.Enabled = (mask & 1) != 0;
        show.form1.Command1.Enabled = (mask & 2) != 0;
        show.form1.Command2.Enabled = (mask & 4) != 0;
        show.form1.Command5.Enabled = (mask & 8) != 0;
        show.form1.Command7.Enabled = (mask & 16) != 0;
        show.box.Show();
        std::string wanted;
        for (int i = 0; i < 5; ++i) {
            wanted += (mask & 1 << i) != 0 ? std::string(1, "XSP<>"[i]) : std::string();
        }
        EXPECT_EQ(show.BoxButtons(), wanted);
    }
}

TEST(ControlBox, BearsTheNameOfTheSlide) {
    BoxShow show;
    EXPECT_EQ(show.box.Caption(), u"1.png");
    EXPECT_EQ(show.BoxButtons(), "XP");
    show.loop.Run(3000);
    EXPECT_EQ(show.box.Caption(), u"2.png");
}

TEST(ControlBox, EveryButtonCutsAnEffectShort) {
    for (int button = 0; button < 5; ++button) {
        BoxShow show;
        show.windows.SetPointer(model::kPointerBusy);  // as an effect does
        show.state.EffectStop = 0;
        show.state.UserInputSeen = 0;
        model::Button* buttons[] = {&show.box.Command1, &show.box.Command2, &show.box.Command3,
                                    &show.box.Command4, &show.box.Command5};
        buttons[button]->Click();
        EXPECT_EQ(show.state.EffectStop, 1);
        EXPECT_EQ(show.state.UserInputSeen, 1);
        EXPECT_TRUE(show.screen.Visible);
        EXPECT_EQ(show.state.ShowRunning, 1);
        EXPECT_EQ(show.state.SlideIndex, 2);
    }
}

TEST(ControlBoxClose, EndsTheShowWhateverTheSettings) {
    BoxShow show;
    ASSERT_EQ(show.state.AlwaysFullFlag, 1);
    show.form1.Timer1.Interval = 10;
    show.Close();
    EXPECT_FALSE(show.screen.Loaded);
    EXPECT_EQ(show.state.ExitToMainOnClose, 0);
    EXPECT_EQ(show.state.StopRequest, 1);
    EXPECT_EQ(show.state.SlideIndex, 0);
    EXPECT_EQ(show.BoxButtons(), "");
    EXPECT_TRUE(show.PreviewEmpty());
    EXPECT_TRUE(show.FileEntriesShown());
    EXPECT_EQ(show.form1.Timer1.Interval, 3000);
    EXPECT_TRUE(show.form1.Visible);
}

TEST(ControlBoxClose, IsRefusedAfterAVideoAndUnderALock) {
    BoxShow show;
    show.form3.Timer1.Enabled = true;
    show.Close();
    EXPECT_TRUE(show.screen.Visible);
    show.form3.Timer1.Enabled = false;
    show.state.MacroWaitClick = 1;
    show.Close();
    EXPECT_TRUE(show.screen.Visible);
    show.state.MacroWaitClick = 0;
    show.Close();
    EXPECT_FALSE(show.screen.Visible);
}

TEST(ControlBoxPause, HoldsTheShowAtTheSlideOnTheScreen) {
    BoxShow show;
    show.loop.Run(3500);
    show.BoxPause();
    EXPECT_EQ(show.state.SlideIndex, 2);
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_EQ(show.BoxButtons(), "XS<>");
    EXPECT_EQ(show.Buttons(), "SX<>F");
    show.loop.Run(20000);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
}

TEST(ControlBoxPause, OffersTheNeighboursThatExist) {
    struct {
        double time;
        int16_t linkRunning, linkIndex, linkEnd;
        const char* buttons;
    } const cases[] = {
        {1000, 0, 0, 0, "XS>"},  // slide 1
        {7000, 0, 0, 0, "XS<"},  // slide 3, the last
        {1000, 1, 3, 3, "XS<>"}, {1000, 1, 2, 4, "XS>"},
        {7000, 1, 2, 3, "XS<>"}, {7000, 1, 4, 4, "XS<"},
    };
    for (const auto& one : cases) {
        BoxShow show;
        show.state.LinkRunning = one.linkRunning;
        show.state.LinkIndex = one.linkIndex;
        show.state.LinkEnd = one.linkEnd;
        show.loop.Run(one.time);
        show.BoxPause();
        EXPECT_EQ(show.BoxButtons(), one.buttons) << one.time << ' ' << one.linkIndex;
    }
}

TEST(ControlBoxPause, IsRefusedWhenNothingRunsOrMayStop) {
    BoxShow show;
    show.state.MacroWaitClick = 1;
    show.BoxPause();
    EXPECT_EQ(show.state.ShowRunning, 1);
    EXPECT_EQ(show.BoxButtons(), "XP");
    show.state.MacroWaitClick = 0;
    show.state.StepBusy = 1;
    show.BoxPause();
    EXPECT_EQ(show.state.ShowRunning, 1);
}

TEST(ControlBoxStart, GoesOnWithTheNextSlide) {
    BoxShow show;
    show.BoxPause();
    show.state.StopRequest = 1;
    show.BoxStart();
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
    EXPECT_EQ(show.state.SlideIndex, 3);
    EXPECT_EQ(show.state.ShowRunning, 1);
    EXPECT_EQ(show.state.StopRequest, 0);
    EXPECT_EQ(show.state.StartLatch, 1);
    EXPECT_TRUE(show.MenusOff());
    EXPECT_EQ(show.BoxButtons(), "XP");
    EXPECT_EQ(show.Buttons(), "PXF");
    show.loop.Run(3000);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2, 3}));
}

TEST(ControlBoxStart, KeepsTheShortIntervalOfItsStep) {
    BoxShow show(4);
    show.PutOut(2);
    show.BoxPause();
    show.BoxStart();
    EXPECT_EQ(show.form1.Timer1.Interval, 1);
    show.loop.Run(1);
    EXPECT_EQ(show.Shown(), (Numbers{1, 3}));
    show.BoxPause();
    show.files.Put(u"C:\\pic\\film.mp4", "film");
    show.form3.List1.SetRow(3, u"C:\\pic\\film.mp4");
    show.state.SlideList.Set(4, u"C:\\pic\\film.mp4");
    show.BoxStart();
    EXPECT_EQ(show.form1.Timer1.Interval, 100);
    show.loop.Run(100);
    EXPECT_EQ(show.Shown(), (Numbers{1, 3, 1}));
}

TEST(ControlBoxStart, OnlyItsOwnStepWaitsForNoSound) {
    BoxShow show;
    show.BoxPause();
    show.state.SoundMode = 1;
    show.state.SoundSyncFlag = 0;
    show.files.Put(u"C:\\pic\\2.wav", "");
    show.sound.answer = [&](TextView command) -> Text {
        return command == u"status wav mode" && show.loop.Milliseconds() < 9000 ? u"playing" : u"";
    };
    show.BoxStart();
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
    EXPECT_EQ(show.state.SkipSyncWaitOnce, 0);
    Numbers whileItPlays;
    show.loop.At(8000, [&] { whileItPlays = show.Shown(); });
    show.loop.Run(10000);
    EXPECT_EQ(whileItPlays, (Numbers{1, 2}));
    EXPECT_EQ(show.Shown(), (Numbers{1, 2, 3}));
}

TEST(ControlBoxStart, TheShowGoesOnInTheWindowWhenTheScreenIsLeftInItsStep) {
    BoxShow show;
    show.BoxPause();
    show.state.TextMacroFlag = 0;
    show.files.Put(u"C:\\pic\\2.txt", "MENU6(1,\"x\")\r\n");
    show.loop.After(1000, [&] { show.screen.KeyDown(27); });
    show.BoxStart();
    EXPECT_FALSE(show.screen.Loaded);
    EXPECT_EQ(show.state.ShowRunning, 1);
    EXPECT_TRUE(show.form1.Timer1.Enabled);
    show.loop.Run(3000);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2, 3}));
}

TEST(ControlBoxStart, WaitsForTheSlideList) {
    BoxShow show;
    show.BoxPause();
    show.state.SlideListWindowOpen = 1;
    show.BoxStart();
    ASSERT_EQ(show.dialogs.messages.size(), 1u);
    EXPECT_EQ(show.dialogs.messages[0].text, u"ファイル選択を終了させてから行って下さい。");
    EXPECT_EQ(show.state.ShowRunning, 0);
    show.state.SlideListWindowOpen = 0;
    show.state.StepBusy = 1;
    show.BoxStart();
    EXPECT_EQ(show.state.ShowRunning, 0);
}

TEST(ControlBoxStart, AtTheEndOfARepeatingListBeginsAnewAfterOneInterval) {
    BoxShow show(1);
    show.BoxPause();
    show.BoxStart();
    EXPECT_EQ(show.state.SlideIndex, 1);
    EXPECT_EQ(show.state.ShowRunning, 1);
    EXPECT_EQ(show.BoxButtons(), "XP");
    EXPECT_EQ(show.Shown(), Numbers{1});
    show.loop.Run(3000);
    EXPECT_EQ(show.Shown(), (Numbers{1, 1}));
}

TEST(ControlBoxStart, AtTheEndOfAListWithoutRepeatCloses) {
    BoxShow show(1);
    show.state.RepeatFlag = 1;
    show.BoxPause();
    show.BoxStart();
    EXPECT_FALSE(show.screen.Loaded);
    EXPECT_EQ(show.BoxButtons(), "");
    EXPECT_EQ(show.state.StopRequest, 1);
}

TEST(ControlBoxStart, ClosesWhenTheStepFails) {
    BoxShow show;
    show.BoxPause();
    show.Break(2);
    show.dialogs.answers = {platform::Answer::No};
    show.state.MacroWaitClick = 1;  // holds back a person, not a failing show
    show.BoxStart();
    EXPECT_FALSE(show.screen.Loaded);
    EXPECT_EQ(show.state.ShowAbort, 0);
    EXPECT_FALSE(show.form1.Timer1.Enabled);
}

TEST(ControlBoxStart, APauseDuringTheStepHolds) {
    BoxShow show;
    show.loop.Run(1000);
    show.BoxPause();
    show.state.TelopRunning = 1;
    show.loop.At(2000, [&] { show.BoxPause(); });
    show.BoxStart();
    EXPECT_EQ(show.Shown(), Numbers{1});
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_FALSE(show.form1.Timer1.Enabled);
    show.BoxStart();
    EXPECT_EQ(show.Shown(), (Numbers{1, 2})) << "the slide that was broken off";
}

TEST(ControlBoxSteps, GoThroughTheList) {
    BoxShow show;
    show.BoxPause();
    show.BoxNext();
    show.BoxNext();
    EXPECT_EQ(show.Shown(), (Numbers{1, 2, 3}));
    EXPECT_EQ(show.BoxButtons(), "XS<");
    EXPECT_EQ(show.Buttons(), "SX<F") << "the main window follows";
    show.BoxNext();
    EXPECT_EQ(show.Shown(), (Numbers{1, 2, 3}));
    show.BoxPrevious();
    EXPECT_EQ(show.Shown(), (Numbers{1, 2, 3, 2}));
    EXPECT_EQ(show.BoxButtons(), "XS<>");
    EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
}

TEST(ControlBoxSteps, BeforeTheFirstSlideThereIsNothing) {
    BoxShow show;
    show.BoxPause();
    show.BoxPrevious();
    EXPECT_EQ(show.state.SlideIndex, 0);
    EXPECT_EQ(show.Shown(), Numbers{1});
    show.BoxPrevious();
    EXPECT_EQ(show.state.SlideIndex, 0);
    show.BoxNext();
    EXPECT_EQ(show.Shown(), (Numbers{1, 1}));
}

TEST(ControlBoxSteps, PassOverSlidesOutOfSchedule) {
    BoxShow show(4);
    show.PutOut(2);
    show.PutOut(3);
    show.BoxPause();
    show.BoxNext();
    EXPECT_EQ(show.Shown(), (Numbers{1, 4}));
    show.BoxPrevious();
    EXPECT_EQ(show.Shown(), (Numbers{1, 4, 1}));
}

TEST(ControlBoxSteps, AreRefusedWhileTheShowRunsOrIsBusy) {
    BoxShow show;
    show.BoxNext();
    show.BoxPrevious();
    EXPECT_EQ(show.Shown(), Numbers{1});
    EXPECT_EQ(show.state.SlideIndex, 2);
    show.BoxPause();
    show.state.StepBusy = 1;
    show.BoxNext();
    EXPECT_EQ(show.Shown(), Numbers{1});
}

}  // namespace
}  // namespace playback_tests

// One slide step: the picture branch, the video branch, load failures.
#include <gtest/gtest.h>

#include "model/windows/control_box.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_list.h"
#include "model/windows/video_window.h"
#include "show_support.h"

namespace playback_tests {
namespace {

TEST(StepPicture, LeavesTheStateOfAFinishedStep) {
    Show show;
    show.state.LastWasVideo = 1;
    show.state.ResetScreenOnce = 1;
    show.state.MacroEndShow = 1;
    show.form1.Timer1.Interval = 3000;
    show.windows.SetPointer(model::kPointerArrowBusy);
    show.Step(2);
    EXPECT_EQ(show.Shown(), Numbers{2});
    EXPECT_EQ(show.state.LastWasVideo, 0);
    EXPECT_EQ(show.state.ResetScreenOnce, 0);
    EXPECT_EQ(show.state.MacroEndShow, 0);
    EXPECT_EQ(show.state.StepBusy, 0);
    EXPECT_EQ(show.state.SlideIndex, 2) << "the callers advance";
    EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
    EXPECT_EQ(show.form1.Timer1.Interval, 3000);
    EXPECT_FALSE(show.form1.Timer1.Enabled);
    EXPECT_EQ(show.form1.Caption(), u"2.png");
    EXPECT_FALSE(show.PreviewEmpty());
}

TEST(StepPicture, PutsTheLoadModeBackWithItsCheck) {
    Show show;
    show.state.LoadMode = 1;
    show.form1.mnuYOMI.Check(1);
    show.Step(1);
    EXPECT_EQ(show.state.LoadMode, 0);
    EXPECT_TRUE(show.form1.mnuYOMI(0).Checked);
    EXPECT_FALSE(show.form1.mnuYOMI(1).Checked);
}

TEST(StepPicture, InTheWindowNoEffectContextIsMade) {
    Show show;
    show.state.ControlBoxFlag = 0;
    show.Step(1);
    EXPECT_EQ(show.state.EffectDcValid, 0);
    EXPECT_EQ(show.state.PreviousPictureOnScreen, 0);
    EXPECT_FALSE(show.windows.slidescreen2.Visible);
}

TEST(StepPicture, EverythingThatIsNoVideoKindIsAPicture) {
    for (const Text path :
         {u"C:\\pic\\a.xyz", u"C:\\pic\\a.mpeg", u"C:\\pic\\a", u"C:\\pic\\mp4.bmp"}) {
        Show show(0);
        show.PutPicture(path, 10, 10);
        show.AddSlide(path);
        show.Step(1);
        EXPECT_EQ(show.Shown(), Numbers{1});
    }
}

TEST(StepFullScreen, BringsThePictureToTheMiddle) {
    Show show(0);
    show.files.Put(u"C:\\pic\\a.png", "PIC 400 300 102030");
    show.AddSlide(u"C:\\pic\\a.png");
    show.GoFullScreen();
    show.state.ShowEffect = 11;
    show.Step(1);
    EXPECT_EQ(show.state.PreviousPictureOnScreen, 1);
    EXPECT_EQ(show.state.EffectDcValid, 1);
    EXPECT_EQ(show.state.EffectDc, show.windows.form4.Picture1.Picture());
    EXPECT_EQ(show.state.PictureX, 760);  // (1920 − 400) / 2
    EXPECT_EQ(show.state.PictureY, 390);  // (1080 − 300) / 2
    const platform::Color colour = platform::Rgb(0x10, 0x20, 0x30);
    EXPECT_EQ(show.screen.P2.canvas.Point(760, 390), colour);
    EXPECT_EQ(show.screen.P2.canvas.Point(1159, 689), colour);
    EXPECT_EQ(show.screen.P2.canvas.Point(759, 390), 0u);
    EXPECT_EQ(show.screen.P2.canvas.Point(1160, 689), 0u);
    EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
}

TEST(StepFullScreen, ShowsTheControlBoxWhereItIsWanted) {
    for (const int16_t flag : {0, 1}) {
        Show show;
        show.GoFullScreen();
        show.state.ControlBoxFlag = flag;
        show.Step(1);
        EXPECT_EQ(show.windows.slidescreen2.Visible, flag == 0);
        EXPECT_EQ(show.windows.slidescreen2.Caption(), u"1.png");
    }
}

TEST(StepFullScreen, KeepsACleanCopyForTheMacros) {
    for (const int16_t macros : {0, 1}) {
        Show show(0);
        show.files.Put(u"C:\\pic\\a.png", "PIC 400 300 FFFFFF");
        show.AddSlide(u"C:\\pic\\a.png");
        show.GoFullScreen();
        show.state.ShowEffect = 11;
        show.state.TextMacroFlag = macros;
        show.Step(1);
        EXPECT_EQ(show.screen.P4.canvas.Point(960, 540), macros == 0 ? 0xFFFFFFu : 0u);
    }
}

TEST(StepFullScreen, AScrollingLabelDoesNotLandInTheCopy) {
    Show show;
    show.GoFullScreen();
    show.state.ShowEffect = 11;
    show.state.TextMacroFlag = 0;
    show.screen.Timer1.Interval = 50;
    show.screen.Timer1.Enabled = true;
    show.screen.Label1.Visible = true;
    bool hidden = false;
    show.loop.onPump = [&] { hidden = hidden || !show.screen.Label1.Visible; };
    show.Step(1);
    EXPECT_TRUE(hidden) << "with a pump, so that it leaves the screen";
    EXPECT_TRUE(show.screen.Label1.Visible);
}

TEST(StepFullScreen, AScrollingLabelStaysAwayWhenItEndsInThePumpOfTheCopy) {
    for (const bool closed : {true, false}) {
        Show show;
        show.GoFullScreen();
        show.state.ShowEffect = 11;
        show.state.TextMacroFlag = 0;
        show.screen.Timer1.Interval = 50;
        show.screen.Timer1.Enabled = true;
        show.screen.Label1.Visible = true;
        show.screen.P4.canvas.Fill(0x00FF00);
        show.loop.onPump = [&] {
            if (show.screen.Label1.Visible) {
                return;
            }
            if (closed) {
                show.screen.Unload();
            } else {
                show.screen.Timer1.Enabled = false;
            }
        };
        show.Step(1);
        EXPECT_FALSE(show.screen.Label1.Visible) << closed;
        EXPECT_EQ(show.screen.P4.canvas.Point(0, 0), closed ? 0x00FF00u : 0u);
    }
}

TEST(StepFullScreen, TheTextOfTheSlideBeforeLeavesALayeredCanvas) {
    struct Setting {
        int16_t overlayMode, textOriginScreen, textMacroFlag;
        bool restored;
    };
    for (const Setting& setting : {Setting{1, 1, 0, true}, {1, 0, 0, false}, {1, 1, 1, false}}) {
        Show show;
        show.GoFullScreen();
        show.state.ShowEffect = 11;
        show.state.OverlayMode = setting.overlayMode;
        show.state.TextOriginScreen = setting.textOriginScreen;
        show.state.TextMacroFlag = setting.textMacroFlag;
        show.screen.P2.canvas.Fill(0x0000FF);  // as with text on it
        show.screen.P4.canvas.Fill(0x00FF00);  // without
        show.Step(1);
        EXPECT_EQ(show.screen.P2.canvas.Point(0, 0), setting.restored ? 0x00FF00u : 0x0000FFu);
    }
}

TEST(StepFailure, ComesBackThroughTheExit) {
    Show show;
    show.Break(2);
    show.state.ListErrorDelete = 1;
    show.GoFullScreen();
    show.Step(2);
    EXPECT_EQ(show.state.StepBusy, 0);
    EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
    EXPECT_EQ(show.form1.Timer1.Interval, 10);
    EXPECT_EQ(show.state.SlideIndex, 1);
    EXPECT_EQ(show.Shown(), Numbers{});
}

TEST(StepFailure, ARemovedSlideCostsOneTickOf10Ms) {
    Show show;
    show.Break(2);
    show.state.ListErrorDelete = 1;
    show.Start();
    show.loop.Run(3000);
    EXPECT_EQ(show.Shown(), Numbers{1});
    show.loop.Run(9);
    EXPECT_EQ(show.Shown(), Numbers{1});
    show.loop.Run(1);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2})) << "the third slide is the second now";
    EXPECT_EQ(show.state.CurrentName, u"3.png");
    EXPECT_EQ(show.state.SlideListEnd, 3);
}

TEST(StepFailure, AFirstSlideThatFailsLeavesTheNextAtOnce) {
    Show show;
    show.Break(1);
    show.state.ListErrorDelete = 1;
    show.Start();
    EXPECT_EQ(show.state.SlideIndex, 1);
    EXPECT_EQ(show.Buttons(), "PXF");
    show.loop.Run(10);
    EXPECT_EQ(show.state.CurrentName, u"2.png");
    EXPECT_EQ(show.state.SlideIndex, 2);
}

TEST(StepFailure, MinimisedTheShowGoesOnAtItsInterval) {
    Show show;
    show.Break(2);
    show.Start();
    show.form1.WindowState = 1;
    show.loop.Run(6000);
    EXPECT_TRUE(show.dialogs.messages.empty());
    EXPECT_EQ(show.Shown(), (Numbers{1, 3}));
    EXPECT_EQ(show.form3.List1.ListCount(), 3);
}

TEST(StepFailure, PauseIsRefusedWhileTheQuestionStands) {
    Show show;
    show.Break(2);
    show.Start();
    show.dialogs.answers = {platform::Answer::Yes};
    show.dialogs.whileOpen = [&](const auto&) {
        EXPECT_EQ(show.state.StepBusy, 1);
        EXPECT_FALSE(show.form1.Timer1.Enabled);
        show.Pause();
        EXPECT_EQ(show.state.ShowRunning, 1);
        EXPECT_TRUE(show.form1.Command2.Enabled);
    };
    show.loop.Run(3010);
    EXPECT_EQ(show.dialogs.messages.size(), 1u);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
}

TEST(StepVideo, AMissingFileTellsAndGoesOnAfter1Ms) {
    for (const Text kind : {u"mp4", u"WMV", u"Mov", u"avi"}) {
        Show show(0);
        show.AddSlide(u"C:\\pic\\a." + kind);
        show.Step(1);
        ASSERT_EQ(show.dialogs.messages.size(), 1u);
        EXPECT_EQ(show.dialogs.messages[0].text,
                  u"C:\\pic\\a." + kind + u"\r\n動画ファイルの再生が停止されました。");
        EXPECT_EQ(show.dialogs.messages[0].flags, 48);
        EXPECT_EQ(show.dialogs.messages[0].title, u"動画ファイル再生停止");
        EXPECT_EQ(show.form1.Timer1.Interval, 1);
        EXPECT_TRUE(show.imaging.log.empty());
        EXPECT_EQ(show.state.LastWasVideo, 0);
        EXPECT_EQ(show.form3.List1.ListCount(), 1) << "the entry stays";
    }
}

TEST(StepVideo, AMissingFileDoesNotStopTheShow) {
    Show show(1);
    show.AddSlide(u"C:\\pic\\a.mp4");
    show.AddPicture();
    show.Start();
    show.loop.Run(3001);
    EXPECT_EQ(show.Shown(), (Numbers{1, 3}));
    EXPECT_EQ(show.state.ShowRunning, 1);
}

TEST(StepVideo, LeavesTheShortTickAndHoldsPauseBack) {
    Show show(0);
    show.files.Put(u"C:\\PIC\\Film.mp4", "film");
    show.AddSlide(u"C:\\pic\\film.MP4");
    show.windows.SetPointer(model::kPointerArrowBusy);
    show.state.VideoStoppedByUser = 1;
    show.Step(1);
    EXPECT_EQ(show.state.CurrentName, u"film.MP4");
    EXPECT_EQ(show.form1.Caption(), u"film.MP4");
    EXPECT_EQ(show.windows.slidescreen2.Caption(), u"film.MP4");
    EXPECT_EQ(show.state.LastWasVideo, 1);
    EXPECT_EQ(show.state.VideoStoppedByUser, 0) << "cleared before it plays";
    EXPECT_EQ(show.form1.Timer1.Interval, 100);
    EXPECT_EQ(show.state.StepBusy, 1);
    EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
    EXPECT_EQ(show.state.ShowAbort, 0);
}

TEST(StepVideo, LinkedSoundBesideIt) {
    struct Setting {
        int16_t mode, listFlag, mp3Flag;
        const char16_t* extension;  // null: no sound of its own
        int16_t restart;
    };
    for (const Setting& setting : {Setting{1, 0, 0, u"wav", 0},
                                   {6, 1, 0, u"wav", 1},
                                   {8, 0, 1, u"wav", 1},
                                   {9, 0, 0, u"mp3", 0},
                                   {6, 0, 0, nullptr, 1},
                                   {8, 0, 0, nullptr, 1},
                                   {3, 0, 0, nullptr, 0},
                                   {0, 0, 0, nullptr, 0}}) {
        Show show(0);
        show.AddSlide(u"C:\\pic\\a.mp4");
        show.files.Put(u"C:\\pic\\a.mp4", "film");
        for (const Text extension : {u"wav", u"mp3", u"mid"}) {
            show.files.Put(u"C:\\pic\\a." + extension, "sound");
        }
        show.state.SoundMode = setting.mode;
        show.state.SoundListCheck5 = setting.listFlag;
        show.state.Mp3LinkedWavFlag = setting.mp3Flag;
        show.Step(1);
        EXPECT_EQ(show.SoundAskedFor(u"C:\\pic\\a.wav"),
                  setting.extension && Text(setting.extension) == u"wav")
            << "mode " << setting.mode;
        if (setting.extension && Text(setting.extension) == u"mp3") {
            EXPECT_TRUE(show.SoundAskedFor(u"C:\\pic\\a.mp3"));
        }
        EXPECT_EQ(show.state.RestartSoundFlag, setting.restart) << "mode " << setting.mode;
    }
}

TEST(StepVideo, LeavesTheCdPlaying) {
    Show show(0);
    show.AddSlide(u"C:\\pic\\a.mp4");
    show.files.Put(u"C:\\pic\\a.mp4", "film");
    show.state.SoundMode = 2;
    show.Step(1);
    EXPECT_TRUE(show.CommandsWith(u"cdaudio").empty());
}

TEST(StepVideo, PlaysForItsLengthAndTheNextSlideFollows) {
    Show show(1);
    show.AddSlide(u"C:\\pic\\a.mp4");
    show.files.Put(u"C:\\pic\\a.mp4", "film");
    show.AddPicture();
    show.video.film.milliseconds = 4000;
    show.Start();
    show.loop.Run(7099);
    EXPECT_EQ(show.Shown(), Numbers{1});
    show.loop.Run(1);  // 3 s, the video's 4 s, the short tick of 100 ms
    EXPECT_EQ(show.Shown(), (Numbers{1, 3}));
    EXPECT_TRUE(show.dialogs.messages.empty());
}

TEST(StepVideo, EnterOnThePlayerEndsTheShow) {
    for (const bool full : {false, true}) {
        Show show(1);
        show.state.FullStartConfirm = 1;
        show.AddSlide(u"C:\\pic\\a.mp4");
        show.files.Put(u"C:\\pic\\a.mp4", "film");
        show.AddPicture();
        if (full) {
            show.form1.Command4.Click();
        } else {
            show.Start();
        }
        show.loop.At(4000, [&] { show.windows.form24.WindowsMediaPlayer1.KeyDown(13); });
        show.loop.Run(20000);
        EXPECT_EQ(show.Shown(), Numbers{1}) << full;
        EXPECT_EQ(show.state.ShowRunning, 0) << full;
        EXPECT_EQ(show.state.SlideIndex, 0) << full;
        EXPECT_EQ(show.state.ShowAbort, 0) << full;
        EXPECT_EQ(show.state.ExitToMainOnClose, 0) << full;
        EXPECT_FALSE(show.screen.Visible) << full;
        EXPECT_TRUE(show.form1.Visible) << full;
        EXPECT_TRUE(show.form1.mnuOPEN.Visible) << full;
        EXPECT_TRUE(show.form1.Command1.Enabled) << full;
    }
}

TEST(StepVideo, AMacroThatWaitsKeepsTheShowAfterAStoppedVideo) {
    Show show(0);
    show.AddSlide(u"C:\\pic\\a.mp4");
    show.files.Put(u"C:\\pic\\a.mp4", "film");
    show.state.MacroWaitClick = 1;
    show.video.film.milliseconds = 0;
    show.Step(1);
    EXPECT_EQ(show.state.VideoStoppedByUser, 1);
    EXPECT_EQ(show.state.ShowAbort, 0);
}

}  // namespace
}  // namespace playback_tests

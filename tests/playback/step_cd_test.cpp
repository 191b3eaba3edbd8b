// The audio CD at a slide step.
#include <gtest/gtest.h>

#include "model/windows/main_window.h"
#include "playback/step_sound.h"
#include "show_support.h"
#include "sound/cd.h"

namespace playback_tests {
namespace {

/// Mode 2 with a disc at 01:02:03.
struct CdShow : Show {
    Text mode = u"playing";
    CdShow() {
        state.SoundMode = 2;
        sound.answer = [this](TextView command) -> Text {
            return command == u"status cdaudio position" ? Text(u"01:02:03:04")
                   : command == u"status cdaudio mode"   ? mode
                                                         : Text();
        };
    }
};

TEST(StepCd, ADiscThatMovedIsLeftAlone) {
    CdShow show;
    show.state.LastCdTrackText = u"01:02:01";
    show.Step(2);
    EXPECT_EQ(show.sound.commands, (Texts{u"status cdaudio position", u"status cdaudio mode"}));
    EXPECT_EQ(show.state.LastCdTrackText, u"01:02:03") << "eight characters";
}

TEST(StepCd, ADiscThatStandsIsStopped) {
    CdShow show;
    show.state.LastCdTrackText = u"01:02:03";
    show.Step(2);
    EXPECT_EQ(show.sound.commands,
              (Texts{u"status cdaudio position", u"status cdaudio mode", u"status cdaudio position",
                     u"stop cdaudio", u"status cdaudio mode"}));
}

TEST(StepCd, ADiscThatStandsPlaysItsTrackAgain) {
    CdShow show;
    show.state.CdPlaying = 2;
    show.state.LastCdTrackText = u"01:02:03";
    show.sound.answer = [&show](TextView command) -> Text {
        if (command == u"stop cdaudio") {
            show.mode = u"stopped";
        }
        return command == u"status cdaudio position"           ? Text(u"01:02:03:04")
               : command == u"status cdaudio mode"             ? show.mode
               : command == u"status cdaudio ready"            ? Text(u"true")
               : command == u"status cdaudio number of tracks" ? Text(u"3")
                                                               : Text();
    };
    show.Step(2);
    EXPECT_EQ(show.CommandsFrom(u"play"), Texts{u"play cdaudio from 2 to 3"});
    // The next one where the track had ended in that second.
    show.sound.commands.clear();
    show.state.LastCdTrackText = u"01:02:03";
    show.Step(2);
    EXPECT_EQ(show.CommandsFrom(u"play"), Texts{u"play cdaudio from 3"});
}

TEST(StepCd, ADiscThatMovesWithinTheSecondPlaysOn) {
    Show show;
    show.state.SoundMode = 2;
    show.sound.cd.Insert({60, 60});
    sound::StartCd(show.app);
    show.loop.Sleep(3200);
    show.state.LastCdTrackText = u"01:00:03";
    show.Step(2);
    EXPECT_TRUE(show.CommandsFrom(u"stop cdaudio").empty());
    EXPECT_EQ(show.CommandsFrom(u"play").size(), 1u);
}

TEST(StepCd, NothingThatStandsIsStoppedWithoutAQuestion) {
    CdShow show;
    show.sound.answer = {};  // an empty drive
    show.Step(2);
    EXPECT_EQ(show.sound.commands,
              (Texts{u"status cdaudio position", u"stop cdaudio", u"status cdaudio mode"}));
}

TEST(StepCd, AStoppedDiscStartsAgainAndClearsTheWish) {
    CdShow show;
    show.mode = u"stopped";
    show.state.RestartSoundFlag = 1;
    show.Step(2);
    EXPECT_EQ(show.state.RestartSoundFlag, 0);
}

TEST(StepCd, OnSlide1TheWishIsClearedUnlessPaused) {
    struct Setting {
        int slide;
        int16_t paused, left;
    };
    for (const Setting& setting : {Setting{1, 0, 0}, {2, 0, 1}, {1, 1, 1}}) {
        CdShow show;
        show.state.RestartSoundFlag = 1;
        show.state.CdPaused = setting.paused;
        show.Step(setting.slide);
        EXPECT_EQ(show.state.RestartSoundFlag, setting.left);
    }
}

TEST(StepCd, ADiscThatIsTakenOutCostsTheMusicAndNotTheShow) {
    for (const bool full : {false, true}) {
        Show show(5);
        show.state.SoundMode = 2;
        show.state.AlwaysFullFlag = full ? 0 : 1;
        show.state.FullStartConfirm = 1;
        show.sound.cd.Insert({60, 60});
        show.loop.At(4000, [&] { show.sound.cd.Insert({}); });
        show.Start();
        show.loop.Run(30000);
        EXPECT_GE(show.Shown().size(), 5u);
        EXPECT_EQ(show.CommandsFrom(u"play cdaudio"), Texts{u"play cdaudio from 1 to 2"});
        EXPECT_TRUE(show.dialogs.messages.empty());
    }
}

TEST(StepCd, PicturesThatFailLeaveTheCdAlone) {
    Show show(4);
    show.state.SoundMode = 2;
    show.state.ListErrorDelete = 1;
    show.Break(2);
    show.Break(3);
    show.sound.cd.Insert({60, 60});
    show.Start();
    show.loop.Run(5000);
    EXPECT_EQ(show.Shown(), (Numbers{1, 2}));
    EXPECT_TRUE(show.CommandsFrom(u"stop cdaudio").empty());
}

TEST(StepCd, NoQuestionByHandOrPaused) {
    CdShow show;
    show.state.CdPaused = 1;
    show.Step(2);
    EXPECT_TRUE(show.sound.commands.empty());
    show.state.CdPaused = 0;
    show.form1.Command1.Enabled = true;
    playback::RunSlideStep(show.app);
    EXPECT_TRUE(show.sound.commands.empty());
}

}  // namespace
}  // namespace playback_tests

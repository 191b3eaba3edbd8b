// The audio CD of a show, by the commands that its drive gets.
#include "sound/cd.h"

#include <gtest/gtest.h>

#include "model/controls.h"
#include "support/fake_platform.h"

namespace {

using sound::CdStart;
using Texts = std::vector<Text>;

/// Mode 2 with tracks of 10 s each in the drive.
struct Rig : fakes::FakePlatform {
    model::ShowState& state = app.state;

    explicit Rig(int tracks = 3) {
        state.SoundMode = 2;
        sound.cd.Insert(std::vector<int>(static_cast<size_t>(tracks), 10));
    }
    void Program(const Texts& entries) {
        state.CdOrder = 2;
        state.CdProgramCount = 0;
        for (const Text& entry : entries) {
            state.CdProgram.Set(++state.CdProgramCount, entry);
        }
    }
    /// The commands that a start sends.
    Texts Start(CdStart why = CdStart::ByPerson) {
        sound.commands.clear();
        sound::StartCd(app, why);
        return sound.commands;
    }
    /// What is played; empty: nothing.
    Text Played(CdStart why = CdStart::ByPerson) {
        constexpr TextView kPlay = u"play cdaudio ";
        for (const Text& command : Start(why)) {
            if (command.starts_with(kPlay)) {
                return command.substr(kPlay.size());
            }
        }
        return {};
    }
    void Pause(const Text& track) {
        state.CdPaused = 1;
        state.CdPausedTrack = track;
    }
    Texts Told() const {
        Texts texts;
        for (const auto& message : dialogs.messages) {
            EXPECT_EQ(message.title, u"ＣＤ再生");
            EXPECT_EQ(message.flags, 48);
            texts.push_back(message.text);
        }
        return texts;
    }
};

const Text kNotReady = u"ＣＤが準備できていません。";
const Text kBadTrack = u"ＣＤトラック設定が不適切です。";

TEST(StartCd, OpensTheDriveAndPlaysOneTrack) {
    Rig rig;
    EXPECT_EQ(rig.Start(),
              (Texts{u"open cdaudio", u"status cdaudio ready", u"status cdaudio number of tracks",
                     u"set cdaudio time format tmsf", u"play cdaudio from 1 to 2"}));
    EXPECT_EQ(rig.state.CdPlaying, 1);
    EXPECT_TRUE(rig.dialogs.messages.empty());
}

TEST(StartCd, DoesNothingInOtherModes) {
    for (int16_t mode = 0; mode <= 9; ++mode) {
        if (mode != 2) {
            Rig rig;
            rig.state.SoundMode = mode;
            rig.state.CdPaused = 1;
            EXPECT_EQ(rig.Start(), Texts());
            EXPECT_EQ(rig.state.CdPaused, 1);
        }
    }
}

TEST(StartCd, OnlyTheLastTrackHasNoEnd) {
    for (const auto& [setting, range] : {std::pair<Text, Text>{u"1", u"from 1 to 2"},
                                         {u"2", u"from 2 to 3"},
                                         {u"3", u"from 3"},
                                         {u" 2 ", u"from 2 to 3"},
                                         {u"2.9", u"from 2 to 3"},
                                         {u"", u"from 1 to 2"},
                                         {u"x", u"from 1 to 2"},
                                         {u"-2", u"from 1 to 2"}}) {
        Rig rig;
        rig.state.CdTrackSetting = setting;
        EXPECT_EQ(rig.Played(), range) << text::ToUtf8(setting);
    }
}

TEST(StartCd, ADriveWithoutTwoTracksIsNotReady) {
    for (const int tracks : {0, 1}) {
        Rig rig(tracks);
        rig.state.CdPaused = 1;
        EXPECT_EQ(rig.Played(), u"");
        EXPECT_EQ(rig.Told(), Texts{kNotReady});
        EXPECT_EQ(rig.state.CdPaused, 0);
    }
    Rig garbled;
    garbled.sound.answer = [](TextView) { return Text(u"Truely"); };
    garbled.Start();
    EXPECT_EQ(garbled.Told(), Texts{kNotReady});
}

TEST(StartCd, ATrackThatTheDiscLacksIsRefusedInEveryOrder) {
    for (const int16_t order : {0, 1, 2}) {
        Rig rig;
        rig.Program({u"1"});
        rig.state.CdOrder = order;
        rig.state.CdTrackSetting = u"4";
        EXPECT_EQ(rig.Played(), u"");
        EXPECT_EQ(rig.Told(), Texts{kBadTrack});
    }
}

TEST(StartCd, AShowThatRunsSaysItOnceAndNotInFullScreen) {
    for (const CdStart why : {CdStart::TrackEnded, CdStart::TrackStuck}) {
        for (const int16_t full : {0, 1}) {
            Rig rig;
            rig.Start();
            rig.state.FullScreenActive = full;
            rig.sound.cd.Insert({});
            for (int i = 0; i < 3; ++i) {
                rig.Start(why);
            }
            EXPECT_EQ(rig.Told().size(), full == 1 ? 0u : 1u);
            rig.Start(CdStart::ByPerson);
            EXPECT_EQ(rig.Told().size(), full == 1 ? 1u : 2u);
            rig.Start(why);
            EXPECT_EQ(rig.Told().size(), full == 1 ? 1u : 2u) << "the START has said it";
        }
    }
    for (const int16_t full : {0, 1}) {
        Rig rig(0);
        rig.state.FullScreenActive = full;
        rig.Start(CdStart::InShow);
        EXPECT_EQ(rig.Told().size(), full == 1 ? 0u : 1u);
    }
}

TEST(StartCd, TheNextTrackFollowsTheOneThatEnded) {
    Rig rig;
    rig.Start();
    for (const Text range : {u"from 2 to 3", u"from 3", u"from 1 to 2", u"from 2 to 3"}) {
        EXPECT_EQ(rig.Played(CdStart::TrackEnded), range);
    }
    EXPECT_EQ(rig.Played(CdStart::TrackStuck), u"from 2 to 3");
    EXPECT_EQ(rig.Played(), u"from 1 to 2") << "a START begins";
}

TEST(StartCd, AfterAPauseEveryOrderGoesOnInItsWay) {
    Rig tracks;
    tracks.Start();
    tracks.Pause(u"2");
    EXPECT_EQ(tracks.Played(), u"from 2 to 3");
    EXPECT_EQ(tracks.state.CdPaused, 0);
    tracks.Pause(u"3");
    EXPECT_EQ(tracks.Played(), u"from 3");
    EXPECT_EQ(tracks.Played(CdStart::TrackEnded), u"from 1 to 2");

    Rig repeat;
    repeat.state.CdRepeatFlag = 0;
    repeat.Start();
    repeat.Pause(u"1");
    EXPECT_EQ(repeat.Played(), u"from 1 to 2");

    Rig random;
    random.state.CdOrder = 1;
    random.loop.randomNumbers = {0.1, 0.9};
    EXPECT_EQ(random.Played(), u"from 1 to 2");
    random.Pause(u"1");
    EXPECT_EQ(random.Played(), u"from 3");
    EXPECT_EQ(random.state.CdPausedTrack, u"3");

    Rig program;
    program.Program({u"2", u"3"});
    EXPECT_EQ(program.Played(), u"from 2 to 3");
    program.Pause(u"2");
    EXPECT_EQ(program.Played(), u"from 3");
    EXPECT_EQ(program.state.CdProgramPosition, 2);
}

TEST(StartCd, APauseWithoutATrackIsABeginning) {
    for (const Text track : {u"", u"0", u"x"}) {
        Rig rig;
        rig.state.CdTrackSetting = u"2";
        rig.Pause(track);
        EXPECT_EQ(rig.Played(), u"from 2 to 3");
    }
}

TEST(StartCd, AnEmptyProgramPlaysNothingAndSaysNothing) {
    Rig rig;
    rig.Program({});
    EXPECT_EQ(rig.Start(), (Texts{u"open cdaudio", u"status cdaudio ready",
                                  u"status cdaudio number of tracks"}));
    EXPECT_TRUE(rig.dialogs.messages.empty());
}

TEST(StartCd, TheEndOfAProgramEndsTheShowUnlessItIsAChain) {
    for (const int16_t chain : {0, 1}) {
        for (const int16_t stop : {0, 1}) {
            Rig rig;
            rig.Program({u"2", u"1"});
            rig.state.CdProgramStop = stop;
            rig.state.LinkRunning = chain;
            rig.Start();
            EXPECT_EQ(rig.Played(CdStart::TrackEnded), u"from 1 to 2");
            EXPECT_EQ(rig.state.ShowAbort, 0);
            EXPECT_EQ(rig.Played(CdStart::TrackEnded), stop == 1 ? u"" : u"from 2 to 3");
            EXPECT_EQ(rig.state.ShowAbort, stop == 1 && chain == 0);
            EXPECT_EQ(rig.state.CdStopPending, stop == 1 && chain == 0);
            EXPECT_EQ(rig.state.CdProgramPosition, stop == 1 ? 2 : 1);
        }
    }
}

TEST(StartCd, WhatPlaysAnewHasNotStoodStill) {
    Rig rig;
    rig.state.LastCdTrackText = u"01:00:03";
    rig.Start();
    EXPECT_EQ(rig.state.LastCdTrackText, u"");
}

TEST(StartCd, AStopWhileTheDriveIsWaitedForEndsIt) {
    Rig rig(0);
    rig.sound.answer = [&](TextView command) {
        if (command == u"status cdaudio ready") {
            rig.state.StopRequest = 1;
        }
        return Text();
    };
    rig.Start();
    EXPECT_TRUE(rig.dialogs.messages.empty());
}

TEST(StopCd, SpeaksToTheDriveInItsModeOnly) {
    for (const int16_t mode : {2, 3}) {
        Rig rig;
        rig.state.SoundMode = mode;
        rig.state.CdPaused = rig.state.CdPlaying = rig.state.CdStopPending = 1;
        sound::StopCd(rig.app);
        EXPECT_EQ(rig.sound.commands,
                  mode == 2 ? (Texts{u"stop cdaudio", u"close cdaudio"}) : Texts());
        EXPECT_EQ(rig.state.CdPaused + rig.state.CdPlaying + rig.state.CdStopPending, 0);
    }
}

TEST(LeaveCd, StopsWhatADocumentBeforeStarted) {
    for (const int16_t mode : {2, 7}) {
        for (const bool plays : {false, true}) {
            Rig rig;
            rig.Program({u"2", u"1"});
            if (plays) {
                rig.Start();
            }
            rig.Pause(u"2");
            rig.sound.commands.clear();
            rig.state.SoundMode = mode;
            sound::LeaveCd(rig.app);
            EXPECT_EQ(rig.sound.commands,
                      plays ? (Texts{u"stop cdaudio", u"close cdaudio"}) : Texts());
            EXPECT_EQ(rig.state.CdPlaying + rig.state.CdPaused + rig.state.CdProgramPosition, 0);
        }
    }
}

TEST(LookAtDisc, LeavesAClosedDriveClosedAndAPlayingOnePlaying) {
    Rig rig;
    sound::DiscContents disc = sound::LookAtDisc(rig.app, true);
    EXPECT_EQ(disc.tracks, 3);
    EXPECT_EQ(disc.lengths, (Texts{u"00:10:00", u"00:10:00", u"00:10:00"}));
    EXPECT_EQ(rig.sound.commands.back(), u"close cdaudio");
    rig.Start();
    disc = sound::LookAtDisc(rig.app, false);
    EXPECT_EQ(disc.tracks, 3);
    EXPECT_TRUE(disc.lengths.empty());
    EXPECT_EQ(rig.sound.MciSendString(u"status cdaudio mode"), u"playing");
    Rig none(1);
    EXPECT_EQ(sound::LookAtDisc(none.app, true).tracks, 0);
    EXPECT_EQ(none.app.windows.Pointer(), model::kPointerNormal);
}

}  // namespace

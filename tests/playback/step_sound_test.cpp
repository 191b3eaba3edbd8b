// One slide step: fade, background piece, linked sounds, by their command strings.
#include "playback/step_sound.h"

#include <gtest/gtest.h>

#include "model/windows/main_window.h"
#include "show_support.h"
#include "text/numbers.h"

namespace playback_tests {
namespace {

/// Mode 9 with an MP3 that plays and another one beside slide 2.
struct FadeShow : Show {
    Text status = u"playing";
    FadeShow() {
        state.SoundMode = 9;
        state.SoundOpen = 1;
        state.SoundPlaying = 1;
        files.Put(u"C:\\pic\\2.mp3", "sound");
        sound.answer = [this](TextView command) -> Text {
            return command.starts_with(u"status") ? status : Text();
        };
    }
};

Texts Volumes(TextView command, int first) {
    Texts volumes;
    for (int volume = first; volume > -20; volume -= 20) {
        volumes.push_back(Text(command) + u" " + text::FromUtf8(std::to_string(volume)));
    }
    return volumes;
}

TEST(StepFade, GoesFromFullVolumeBelowZeroInStepsOf100Ms) {
    FadeShow show;
    show.Step(2);
    Texts expected = Volumes(u"setaudio mp3 volume to", 980);
    expected.push_back(u"setaudio mp3 volume to -20");
    ASSERT_EQ(expected.size(), 51u);
    expected.push_back(u"setaudio mp3 volume to 1000");  // of the piece that comes
    EXPECT_EQ(show.CommandsFrom(u"setaudio"), expected);
    EXPECT_EQ(show.CommandsFrom(u"status mp3 mode").size(), 1u);
    EXPECT_EQ(show.loop.sleeps, Numbers(51, 100));
    EXPECT_EQ(show.Shown(), Numbers{2});
}

TEST(StepFade, BeginsAtTheVolumeThatTheMacroLeft) {
    FadeShow show;
    show.state.Mp3VolumeOffset = 300;
    show.Step(2);
    const Texts sent = show.CommandsFrom(u"setaudio");
    ASSERT_EQ(sent.size(), 37u);  // 680 to 0, −20, and the piece that comes
    EXPECT_EQ(sent.front(), u"setaudio mp3 volume to 680");
    EXPECT_EQ(sent[34], u"setaudio mp3 volume to 0");
    EXPECT_EQ(sent[35], u"setaudio mp3 volume to -20");
    EXPECT_EQ(sent.back(), u"setaudio mp3 volume to 700");
}

TEST(StepFade, NotWithoutALinkedMp3OrASoundThatPlays) {
    struct Setting {
        const char* what;
        void (*set)(FadeShow&);
        size_t asked;
    };
    const Setting settings[] = {
        {"no MP3 beside the slide", [](FadeShow& s) { s.files.Remove(u"C:\\pic\\2.mp3"); }, 0},
        {"not open", [](FadeShow& s) { s.state.SoundOpen = 0; }, 0},
        {"not playing", [](FadeShow& s) { s.state.SoundPlaying = 0; }, 0},
        {"linked MIDI", [](FadeShow& s) { s.state.SoundMode = 5; }, 0},
        {"already at its end", [](FadeShow& s) { s.status = u"stopped"; }, 1},
    };
    for (const Setting& setting : settings) {
        FadeShow show;
        setting.set(show);
        show.Step(2);
        EXPECT_TRUE(show.loop.sleeps.empty()) << setting.what;
        EXPECT_EQ(show.CommandsFrom(u"status mp3 mode").size(), setting.asked) << setting.what;
        EXPECT_EQ(show.Shown(), Numbers{2}) << setting.what;
    }
}

TEST(StepFade, AListMp3FadesBeforeAVideo) {
    for (const int16_t mp3 : {0, 1}) {
        FadeShow show;
        show.AddSlide(u"C:\\pic\\4.mp4");
        show.files.Put(u"C:\\pic\\4.mp4", "film");
        show.state.SoundMode = 6;
        show.state.ListMp3Playing = mp3;
        show.Step(4);
        EXPECT_EQ(show.CommandsFrom(u"setaudio wav volume to").size(), mp3 == 1 ? 51u : 0u);
        EXPECT_EQ(show.CommandsFrom(u"status wav mode").size(), mp3 == 1 ? 1u : 0u);
        EXPECT_EQ(show.state.LastWasVideo, 1);
    }
}

TEST(StepFade, AListMp3DoesNotFadeBeforeAPicture) {
    FadeShow show;
    show.state.SoundMode = 6;
    show.state.ListMp3Playing = 1;
    show.Step(2);
    EXPECT_TRUE(show.CommandsFrom(u"setaudio").empty());
}

TEST(StepFade, ASoundThatWasClosedEndsItAndThePictureComes) {
    FadeShow show;
    show.loop.At(250, [&] { show.state.SoundOpen = 0; });
    show.Step(2);
    // Sent at 0, 100 and 200; the pump at 300 sees the end. Then the next piece begins.
    const Texts sent = show.CommandsFrom(u"setaudio");
    ASSERT_EQ(sent.size(), 4u);
    EXPECT_EQ(sent[2], u"setaudio mp3 volume to 940");
    EXPECT_EQ(sent[3], u"setaudio mp3 volume to 1000");
    EXPECT_EQ(show.Shown(), Numbers{2});
    EXPECT_EQ(show.state.StepBusy, 0);
}

TEST(StepFade, AStopOrAClosedScreenLeavesAtOnce) {
    for (int16_t model::ShowState::*flag :
         {&model::ShowState::StopRequest, &model::ShowState::FullScreenClosed}) {
        FadeShow show;
        show.loop.At(250, [&] { show.state.*flag = 1; });
        show.Step(2);
        // Three steps down; what still plays has its volume back.
        const Texts sent = show.CommandsFrom(u"setaudio");
        ASSERT_EQ(sent.size(), 4u);
        EXPECT_EQ(sent.back(), u"setaudio mp3 volume to 1000");
        EXPECT_EQ(show.Shown(), Numbers{});
        EXPECT_TRUE(show.imaging.log.empty());
    }
}

TEST(StepFade, StopByItsButton) {
    FadeShow show;
    show.state.SoundPlaying = 0;
    show.Start();
    show.state.SoundOpen = 1;
    show.state.SoundPlaying = 1;
    show.loop.At(3250, [&] { show.Stop(); });
    show.loop.Run(20000);
    EXPECT_EQ(show.Shown(), Numbers{1});
    EXPECT_EQ(show.CommandsFrom(u"setaudio").size(), 3u);
    EXPECT_EQ(show.state.StepBusy, 0);
    EXPECT_EQ(show.state.SlideIndex, 0);
    EXPECT_FALSE(show.form1.Timer1.Enabled);
}

TEST(StepBackground, AsksTheAliasOfTheMode) {
    struct Setting {
        int16_t mode;
        const char16_t* question;
    };
    for (const Setting& setting : {Setting{3, u"status wav mode"},
                                   {4, u"status mid mode"},
                                   {6, u"status wav mode"},
                                   {8, u"status mp3 mode"}}) {
        Show show;
        show.state.SoundMode = setting.mode;
        show.state.SoundPlaying = 1;
        show.state.SoundListNext = 1;
        show.sound.answer = [](TextView) -> Text { return u"playing"; };
        show.Step(2);
        EXPECT_EQ(show.sound.commands, Texts{setting.question}) << "mode " << setting.mode;
        EXPECT_EQ(show.state.SoundListNext, 0);
    }
}

TEST(StepBackground, WishesAreMetAndCleared) {
    for (const int which : {0, 1}) {
        Show show;
        show.state.SoundMode = 8;
        (which == 0 ? show.state.RestartSoundFlag : show.state.RestartSoundMacro) = 1;
        show.Step(2);
        EXPECT_EQ(show.state.RestartSoundFlag, 0);
        EXPECT_EQ(show.state.RestartSoundMacro, 0);
    }
}

TEST(StepBackground, NotPausedNotByHandNotInOtherModes) {
    struct Setting {
        const char* what;
        int16_t mode, paused;
        bool byHand;
    };
    for (const Setting& setting :
         {Setting{"paused", 8, 1, false}, {"by hand", 8, 0, true}, {"none", 7, 0, false}}) {
        Show show;
        show.state.SoundMode = setting.mode;
        show.state.SoundPaused = setting.paused;
        show.state.SoundPlaying = 1;
        show.state.RestartSoundFlag = 1;
        show.form1.Command1.Enabled = setting.byHand;
        show.state.SlideIndex = 2;
        playback::RunSlideStep(show.app);
        EXPECT_TRUE(show.CommandsFrom(u"status").empty()) << setting.what;
        EXPECT_EQ(show.state.RestartSoundFlag, 1) << setting.what;
    }
}

TEST(StepBackground, TheNextListSoundIsTakenUp) {
    Show show;
    show.state.SoundMode = 6;
    show.state.SoundListNext = 1;
    show.state.SoundListCount = 1;
    show.state.SoundList.Set(1, u"C:\\s\\a.wav");
    show.files.Put(u"C:\\s\\a.wav", "sound");
    show.Step(2);
    EXPECT_EQ(show.state.SoundListNext, 0);
    EXPECT_EQ(show.CommandsFrom(u"open").size(), 1u);
}

TEST(StepBackground, APieceThatEndedBeginsAgainAtThePicture) {
    for (const Text answer : {u"stopped", u"Xtopped", u"playing", u""}) {
        Show show;
        show.state.SoundMode = 3;
        show.state.WavFile = u"C:\\s\\a.wav";
        show.files.Put(show.state.WavFile, "sound");
        show.sound.answer = [&](TextView command) -> Text {
            return command.starts_with(u"status") ? answer : Text();
        };
        show.state.SoundOpen = 1;
        show.state.SoundPlaying = 1;
        show.Step(2);
        // The first letter is not compared.
        const bool again = answer.size() == 7 && answer != u"playing";
        EXPECT_EQ(show.CommandsFrom(u"open").size(), again ? 1u : 0u) << text::ToUtf8(answer);
        EXPECT_EQ(show.CommandsFrom(u"close").size(), again ? 4u : 0u) << text::ToUtf8(answer);
        EXPECT_EQ(show.state.SoundPlaying, 1);
    }
}

TEST(StepBackground, AMissingListEntryCostsOnePicture) {
    Show show;
    show.state.SoundMode = 6;
    show.state.SoundListCount = 3;
    for (const int entry : {1, 2}) {
        show.state.SoundList.Set(entry, u"C:\\s\\gone.wav");
    }
    show.state.SoundList.Set(3, u"C:\\s\\a.wav");
    show.files.Put(u"C:\\s\\a.wav", "sound");
    show.state.RestartSoundFlag = 1;
    show.Step(1);
    EXPECT_EQ(show.state.SoundListPos, 1);
    show.state.StepBusy = 0;
    show.Step(2);
    EXPECT_EQ(show.state.SoundListPos, 2);
    EXPECT_TRUE(show.CommandsFrom(u"open").empty());
    show.Step(3);
    EXPECT_EQ(show.state.SoundListPos, 3);
    EXPECT_EQ(show.CommandsFrom(u"open").size(), 1u);
    EXPECT_TRUE(show.dialogs.messages.empty());
}

Texts SecondChannel(const Text& path) {
    return {u"stop wav_ren", u"close wav_ren",
            u"open \"" + path + u"\" type waveaudio alias wav_ren",
            u"set wav_ren time format samples", u"play wav_ren from 1"};
}

struct ChannelShow : Show {
    explicit ChannelShow(int16_t mode) {
        state.SoundMode = mode;
        state.MidiLinkedWavFlag = 1;
        state.Mp3LinkedWavFlag = 1;
        state.SoundListCheck5 = 1;
        state.DefaultEffectSound = u"ding.wav";
        files.Put(u"C:\\pic\\2.wav", "sound");
        files.Put(u"C:\\app\\ding.wav", "sound");
    }
};

TEST(StepSecondChannel, PlaysTheLinkedWavOverTheBackground) {
    for (const int16_t mode : {4, 6, 8}) {
        ChannelShow show(mode);
        show.Step(2);
        EXPECT_EQ(show.CommandsWith(u"wav_ren"), SecondChannel(u"C:\\pic\\2.wav")) << mode;
        EXPECT_EQ(show.state.SoundOpen, 1);
        EXPECT_EQ(show.state.SoundPlaying, 1);
    }
}

TEST(StepSecondChannel, StaysSilentWhereAStopCameInBeforeIt) {
    for (const int16_t position : {0, 1}) {
        ChannelShow show(8);
        show.state.LinkedSoundPosition = position;
        show.state.TextMacroFlag = 0;
        show.GoFullScreen();
        show.screen.Timer1.Enabled = true;  // the copy for the macros pumps then
        show.loop.onPump = [&] { show.state.StopRequest = 1; };
        show.Step(2);
        EXPECT_TRUE(show.CommandsWith(u"wav_ren").empty()) << position;
        EXPECT_EQ(show.state.StepBusy, 0);
        EXPECT_EQ(show.windows.Pointer(), model::kPointerNormal);
    }
}

TEST(StepSecondChannel, OnlyWithItsFlag) {
    for (const int16_t mode : {3, 4, 6, 7, 8}) {
        ChannelShow show(mode);
        show.state.MidiLinkedWavFlag = 0;
        show.state.Mp3LinkedWavFlag = 0;
        show.state.SoundListCheck5 = 0;
        show.Step(2);
        EXPECT_TRUE(show.CommandsWith(u"wav_ren").empty()) << mode;
        EXPECT_EQ(show.state.SoundOpen, 0) << mode;
    }
}

TEST(StepSecondChannel, TheDefaultStepsInWhereTheLinkedOneCannotBeRead) {
    ChannelShow missing(8);
    missing.Step(3);
    EXPECT_EQ(missing.CommandsWith(u"wav_ren"), SecondChannel(u"C:\\app\\ding.wav"));

    ChannelShow unreadable(8);
    unreadable.files.MakeUnreadable(u"C:\\pic\\2.wav");
    unreadable.state.DefaultEffectSound = u"D:\\snd\\dong.wav";
    unreadable.files.Put(u"D:\\snd\\dong.wav", "sound");
    unreadable.Step(2);
    EXPECT_EQ(unreadable.CommandsWith(u"wav_ren"), SecondChannel(u"D:\\snd\\dong.wav"));
}

TEST(StepSecondChannel, WhatIsNoDefault) {
    for (const Text name : {u"*.wav", u"*.WAV", u"", u"a.mp", u"missing.wav"}) {
        ChannelShow show(8);
        show.files.Put(u"C:\\app\\a.mp", "sound");
        show.state.DefaultEffectSound = name;
        show.Step(3);
        EXPECT_TRUE(show.CommandsWith(u"wav_ren").empty()) << text::ToUtf8(name);
        EXPECT_EQ(show.state.SoundOpen, 0) << text::ToUtf8(name);
        EXPECT_EQ(show.state.SoundPlaying, 0) << text::ToUtf8(name);
    }
}

TEST(StepMainChannel, TheFileOfTheMode) {
    struct Setting {
        int16_t mode, cdPlusLinkedWav;
        const char16_t* path;  // null: none
    };
    for (const Setting& setting : {Setting{1, 1, u"C:\\pic\\2.wav"},
                                   {2, 0, u"C:\\pic\\2.wav"},
                                   {2, 1, nullptr},
                                   {5, 1, u"C:\\pic\\2.mid"},
                                   {9, 1, u"C:\\pic\\2.mp3"},
                                   {3, 1, nullptr},
                                   {7, 1, nullptr}}) {
        Show show;
        show.state.SoundMode = setting.mode;
        show.state.CdPlusLinkedWav = setting.cdPlusLinkedWav;
        for (const Text path : {u"C:\\pic\\2.wav", u"C:\\pic\\2.mid", u"C:\\pic\\2.mp3"}) {
            show.files.Put(path, "sound");
        }
        show.Step(2);
        for (const Text path : {u"C:\\pic\\2.wav", u"C:\\pic\\2.mid"}) {
            EXPECT_EQ(show.SoundAskedFor(path), setting.path && setting.path == path)
                << setting.mode << " " << text::ToUtf8(path);
        }
        if (setting.path) {
            EXPECT_TRUE(show.SoundAskedFor(setting.path)) << setting.mode;
        }
    }
}

TEST(StepMainChannel, TheDefaultSoundStandsInForWavsOnly) {
    struct Setting {
        int16_t mode;
        bool takes;
    };
    for (const Setting& setting : {Setting{1, true}, {2, true}, {5, false}, {9, false}}) {
        Show show;
        show.state.SoundMode = setting.mode;
        show.state.CdPlusLinkedWav = 0;
        show.state.DefaultEffectSound = u"ding.wav";
        show.files.Put(u"C:\\app\\ding.wav", "sound");
        show.Step(2);
        EXPECT_EQ(show.SoundAskedFor(u"C:\\app\\ding.wav"), setting.takes) << setting.mode;
    }
}

TEST(StepMainChannel, SoundsOfTheLinkedFolder) {
    Show show;
    show.state.SoundMode = 1;
    show.state.LinkedFolderFlag = 1;
    show.state.LinkedFolder = u"D:\\snd";
    show.files.Put(u"D:\\snd\\2.wav", "sound");
    show.files.Put(u"C:\\pic\\2.wav", "sound");
    show.Step(2);
    EXPECT_TRUE(show.SoundAskedFor(u"D:\\snd\\2.wav"));
    EXPECT_FALSE(show.SoundAskedFor(u"C:\\pic\\2.wav"));
}

/// Opens, plays and stops of the alias "wav".
size_t Opened(const Show& show) {
    return show.CommandsFrom(u"open").size();
}

TEST(StepMainChannel, TwoPicturesWithTheSameSoundPlayItOnce) {
    Show show(2);
    show.AddSlide(Show::PathOf(2));
    show.state.SoundMode = 1;
    show.files.Put(u"C:\\pic\\2.wav", "sound");
    show.Step(2);
    EXPECT_EQ(Opened(show), 1u);
    show.sound.commands.clear();
    show.Step(3);
    EXPECT_TRUE(show.sound.commands.empty()) << "it is not even stopped";
    EXPECT_EQ(show.state.SoundPlaying, 1);
}

TEST(StepMainChannel, TheDefaultSoundIsHeardAtEveryPicture) {
    for (const int16_t mode : {1, 2}) {
        Show show;
        show.state.SoundMode = mode;
        show.state.CdPlusLinkedWav = 0;
        show.state.DefaultEffectSound = u"ding.wav";
        show.files.Put(u"C:\\app\\ding.wav", "sound");
        for (int slide = 1; slide <= 3; ++slide) {
            show.Step(slide);
            EXPECT_EQ(Opened(show), static_cast<size_t>(slide)) << mode;
            EXPECT_EQ(show.CommandsFrom(u"play wav from 1").size(), static_cast<size_t>(slide));
        }
    }
}

TEST(StepMainChannel, AfterAPictureWithoutOneTheSameSoundPlaysAgain) {
    Show show(2);
    show.state.SoundMode = 1;
    show.files.Put(u"C:\\pic\\2.wav", "sound");
    show.Step(2);
    show.sound.commands.clear();
    show.Step(1);
    EXPECT_TRUE(show.sound.commands.empty()) << "what plays goes on";
    show.Step(2);
    EXPECT_EQ(Opened(show), 1u);
}

TEST(StepMainChannel, TheCommonSoundPlaysWithEveryPicture) {
    Show show;
    show.state.SoundMode = 0;
    show.files.Put(u"C:\\app\\vue1.wav", "sound");
    for (int slide = 1; slide <= 3; ++slide) {
        show.Step(slide);
    }
    EXPECT_EQ(Opened(show), 3u);
    EXPECT_EQ(show.CommandsFrom(u"close wav_ren").size(), 2u) << "each ends the one before";
}

TEST(StepMainChannel, WithoutTheCommonSoundSilence) {
    Show show;
    show.state.SoundMode = 0;
    show.Step(1);
    EXPECT_TRUE(show.sound.commands.empty());
    EXPECT_TRUE(show.dialogs.messages.empty());
}

TEST(StepMainChannel, WithoutAnMp3ThePieceRunsOn) {
    Show show;
    show.state.SoundMode = 9;
    show.files.Put(u"C:\\pic\\1.mp3", "sound");
    show.Step(1);
    EXPECT_EQ(show.state.ListMp3Playing, 1);
    show.sound.commands.clear();
    show.Step(2);
    EXPECT_TRUE(show.sound.commands.empty());
    EXPECT_EQ(show.state.SoundOpen, 1);
}

}  // namespace
}  // namespace playback_tests

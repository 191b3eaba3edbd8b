// What starts and stops sound, by its command strings.
#include "sound/sound.h"

#include <gtest/gtest.h>

#include "model/controls.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"
#include "model/windows/sound_list.h"
#include "model/windows/video_window.h"
#include "picture/video_window.h"
#include "support/fake_platform.h"
#include "text/numbers.h"

namespace {

using Texts = std::vector<Text>;

/// Slide 1 is a picture, slide 2 a video; every file that a mode can want is there.
struct Rig : fakes::FakePlatform {
    model::ShowState& state = app.state;
    model::Form1& form1 = app.windows.form1;

    explicit Rig(int16_t mode) {
        state.SoundMode = mode;
        state.SlideList.Set(1, u"C:\\pic\\1.png");
        state.SlideList.Set(2, u"C:\\pic\\2.MP4");
        state.SlideIndex = 1;
        for (const Text path :
             {u"C:\\app\\vue1.wav", u"C:\\s\\l.wav", u"C:\\s\\l.mid", u"C:\\s\\l.mp3",
              u"C:\\s\\b.WAV", u"C:\\s\\b.Mid", u"C:\\s\\b.mp3", u"C:\\s\\b.txt"}) {
            files.Put(path, "sound");
        }
        state.LinkedWavPath = u"C:\\s\\l.wav";
        state.LinkedMediaPath = mode == 9 ? u"C:\\s\\l.mp3" : u"C:\\s\\l.mid";
        state.WavFile = u"C:\\s\\b.WAV";
        state.MidiFile = u"C:\\s\\b.Mid";
        state.Mp3File = u"C:\\s\\b.mp3";
    }
    void PutList(const Texts& list) {
        for (const Text& path : list) {
            state.SoundList.Set(++state.SoundListCount, path);
            app.windows.form10.List1.AddItem(path);
        }
    }
    Texts Start() {
        sound.commands.clear();
        sound::StartSound(app);
        return sound.commands;
    }
};

Texts Wave(const Text& path) {
    return {u"open \"" + path + u"\" type waveaudio alias wav", u"set wav time format samples",
            u"play wav from 1"};
}

TEST(StartSound, CommandsOfEveryMode) {
    struct Setting {
        int16_t mode;
        Texts commands;
    };
    const Setting settings[] = {
        {0, Wave(u"C:\\app\\vue1.wav")},
        {1, Wave(u"C:\\s\\l.wav")},
        {2, Wave(u"C:\\s\\l.wav")},
        {3, Wave(u"C:\\s\\b.WAV")},
        {4, {u"open \"C:\\s\\b.Mid\" type sequencer alias mid", u"play mid from 1"}},
        {5, {u"open \"C:\\s\\l.mid\" type sequencer alias mid", u"play mid from 1"}},
        {7, {}},
        {8,
         {u"open \"C:\\s\\b.mp3\" type MPEGVideo alias mp3", u"play mp3 from 1",
          u"setaudio mp3 volume to 1000"}},
        {9,
         {u"open \"C:\\s\\l.mp3\" type MPEGVideo alias mp3", u"play mp3 from 1",
          u"setaudio mp3 volume to 1000"}},
    };
    for (const Setting& setting : settings) {
        Rig player(setting.mode);
        player.state.CdPlusLinkedWav = 0;
        player.state.SoundPaused = 1;
        EXPECT_EQ(player.Start(), setting.commands) << setting.mode;
        const int16_t plays = setting.commands.empty() ? 0 : 1;
        EXPECT_EQ(player.state.SoundOpen, plays) << setting.mode;
        EXPECT_EQ(player.state.SoundPlaying, plays) << setting.mode;
        EXPECT_EQ(player.state.ListMp3Playing, setting.mode == 8 || setting.mode == 9);
        EXPECT_EQ(player.state.SoundPaused, 0);
        EXPECT_EQ(player.state.LinkedWavPath.empty(), plays == 1) << setting.mode;
        EXPECT_EQ(player.state.LinkedMediaPath.empty(), plays == 1) << setting.mode;
        EXPECT_TRUE(player.dialogs.messages.empty());
    }
}

TEST(StartSound, TheCdAloneStartsNothingHere) {
    Rig player(2);
    EXPECT_TRUE(player.Start().empty());
    EXPECT_EQ(player.state.LinkedWavPath, u"C:\\s\\l.wav") << "left before the choice";
}

TEST(StartSound, VolumeThatTheMacroLeft) {
    Rig player(8);
    player.state.Mp3VolumeOffset = 250;
    EXPECT_EQ(player.Start().back(), u"setaudio mp3 volume to 750");
    player.state.Mp3VolumeOffset = 1000;
    EXPECT_EQ(player.Start().back(), u"setaudio mp3 volume to 0");
}

TEST(StartSound, BesideAVideo) {
    struct Setting {
        int16_t mode;
        const char16_t* opened;  // null: nothing
    };
    for (const Setting& setting : {Setting{0, u"C:\\app\\vue1.wav"},
                                   {1, u"C:\\s\\l.wav"},
                                   {2, nullptr},
                                   {3, u"C:\\s\\b.WAV"},
                                   {6, u"C:\\s\\l.wav"},
                                   {8, u"C:\\s\\l.wav"},
                                   {9, u"C:\\s\\l.mp3"}}) {
        Rig player(setting.mode);
        player.state.CdPlusLinkedWav = 0;
        player.PutList({u"C:\\s\\b.mp3"});
        player.state.SlideIndex = 2;
        const Texts commands = player.Start();
        EXPECT_EQ(commands.empty(), setting.opened == nullptr) << setting.mode;
        if (setting.opened) {
            EXPECT_NE(commands.front().find(setting.opened), Text::npos) << setting.mode;
        }
        EXPECT_EQ(player.state.SoundListPos, 0) << "the list waits";
    }
}

TEST(StartSound, TheListOpensEveryKindAsWavAndGoesRound) {
    Rig player(6);
    player.state.Mp3VolumeOffset = 100;
    player.PutList({u"C:\\s\\b.WAV", u"C:\\s\\b.Mid", u"C:\\s\\b.mp3"});
    const Texts first = Wave(u"C:\\s\\b.WAV");
    EXPECT_EQ(player.Start(), first);
    EXPECT_EQ(player.state.SoundListPos, 1);
    EXPECT_EQ(player.state.ListMp3Playing, 0);
    EXPECT_EQ(player.Start(),
              (Texts{u"open \"C:\\s\\b.Mid\" type sequencer alias wav", u"play wav from 1"}));
    EXPECT_EQ(player.Start(), (Texts{u"open \"C:\\s\\b.mp3\" type MPEGVideo alias wav",
                                     u"play wav from 1", u"setaudio wav volume to 900"}));
    EXPECT_EQ(player.state.SoundListPos, 3);
    EXPECT_EQ(player.state.ListMp3Playing, 1);
    EXPECT_EQ(player.Start(), first);
    EXPECT_EQ(player.state.SoundListPos, 1);
}

TEST(StartSound, TheListCanStartAtTheSelectedRowOnce) {
    Rig player(6);
    player.PutList({u"C:\\s\\b.WAV", u"C:\\s\\b.Mid", u"C:\\s\\b.mp3"});
    player.app.windows.form10.Check6.Value = 1;
    player.app.windows.form10.List1.ListIndex = 1;
    player.Start();
    EXPECT_EQ(player.state.SoundListPos, 2);
    EXPECT_EQ(player.state.SoundListStarted, 1);
    player.Start();
    EXPECT_EQ(player.state.SoundListPos, 3);

    Rig none(6);
    none.PutList({u"C:\\s\\b.WAV"});
    none.app.windows.form10.Check6.Value = 1;
    EXPECT_EQ(none.Start(), Wave(u"C:\\s\\b.WAV")) << "no row is selected";
}

TEST(StartSound, AnEmptyOrGarbledListIsSilent) {
    Rig player(6);
    EXPECT_TRUE(player.Start().empty());
    EXPECT_EQ(player.state.SoundListNext, 0);
    player.state.SoundListPos = 32000;
    player.state.SoundListCount = 3;  // without entries
    EXPECT_TRUE(player.Start().empty());
    EXPECT_EQ(player.state.SoundListPos, 1);
}

TEST(StartSound, AMissingListEntryIsLeftToTheNextPicture) {
    Rig player(6);
    player.PutList({u"C:\\s\\gone.wav", u"C:\\s\\b.WAV"});
    EXPECT_TRUE(player.Start().empty());
    EXPECT_EQ(player.state.SoundListNext, 1);
    EXPECT_EQ(player.state.SoundPlaying, 0);
    EXPECT_TRUE(player.dialogs.messages.empty());
    EXPECT_EQ(player.Start(), Wave(u"C:\\s\\b.WAV"));
    EXPECT_EQ(player.state.SoundListNext, 0);
}

TEST(StartSound, AMissingFileIsSilent) {
    for (const int16_t mode : {0, 3, 4, 8}) {
        Rig player(mode);
        for (const Text path :
             {u"C:\\app\\vue1.wav", u"C:\\s\\b.WAV", u"C:\\s\\b.Mid", u"C:\\s\\b.mp3"}) {
            player.files.Remove(path);
        }
        EXPECT_TRUE(player.Start().empty());
        EXPECT_EQ(player.state.SoundPlaying, 0);
        EXPECT_TRUE(player.dialogs.messages.empty());
    }
}

TEST(StartSound, AFileThatCannotBeReadIsReportedInTheBackgroundModes) {
    struct Setting {
        int16_t mode;
        const char16_t* path;
        const char16_t* advice;  // null: no box
        const char16_t* title;
    };
    for (const Setting& setting :
         {Setting{3, u"C:\\s\\b.WAV", u"ＷＡＶ再生を確認して下さい。", u"ＷＡＶファイル読込エラー"},
          {4, u"C:\\s\\b.Mid", u"ＭＩＤＩ再生を確認して下さい。", u"ＭＩＤＩファイル読込エラー"},
          {6, u"C:\\s\\b.WAV", u"WAV.MIDリストを確認して下さい。",
           u"WAV.MIDリストファイル読込エラー"},
          {8, u"C:\\s\\b.mp3", u"ＭＰ３再生を確認して下さい。", u"ＭＰ３ファイル読込エラー"},
          {0, u"C:\\app\\vue1.wav", nullptr, nullptr},
          {1, u"C:\\s\\l.wav", nullptr, nullptr},
          {5, u"C:\\s\\l.mid", nullptr, nullptr},
          {9, u"C:\\s\\l.mp3", nullptr, nullptr}}) {
        Rig player(setting.mode);
        player.PutList({u"C:\\s\\b.WAV"});
        player.files.MakeUnreadable(setting.path);
        player.state.SoundPlaying = 1;
        EXPECT_TRUE(player.Start().empty()) << setting.mode;
        EXPECT_EQ(player.state.SoundPlaying, 0) << setting.mode;
        EXPECT_EQ(player.state.LastSoundFile, u"");
        EXPECT_EQ(player.state.SoundListNext, setting.mode == 6) << setting.mode;
        ASSERT_EQ(player.dialogs.messages.size(), setting.advice ? 1u : 0u) << setting.mode;
        if (setting.advice) {
            const auto& box = player.dialogs.messages[0];
            EXPECT_EQ(box.text,
                      Text(setting.path) + u"\r\nファイルが読み込めません。\r\n" + setting.advice);
            EXPECT_EQ(box.title, setting.title);
            EXPECT_EQ(box.flags, 48);
        }
    }
}

/// Somebody else holds the file for the first `failures` tries.
class HeldFiles : public fakes::FakeFiles {
public:
    int failures = 0;
    int Readable(TextView path) override {
        return failures-- > 0 ? 2 : fakes::FakeFiles::Readable(path);
    }
};

TEST(StartSound, OneFailureIsTriedAgain) {
    for (const int failures : {1, 2}) {
        Rig player(3);
        HeldFiles held;
        held.Put(u"C:\\s\\b.WAV", "sound");
        held.failures = failures;
        Application app{platform::Platform{
            player.loop, held, player.dialogs, player.monitors, player.imaging, player.textRenderer,
            player.sound, player.video, player.system, player.trace, player.codePage,
            player.folders, player.fileChanges, player.clipboard, player.wallpaper,
            player.thumbnails, player.fileInquiry}};
        app.state.SoundMode = 3;
        app.state.WavFile = u"C:\\s\\b.WAV";
        sound::StartSound(app);
        EXPECT_EQ(player.sound.commands.empty(), failures == 2);
        EXPECT_EQ(player.dialogs.messages.size(), failures == 2 ? 1u : 0u);
    }
}

TEST(StartSound, AnotherKindOpensNothingButCountsAsPlaying) {
    Rig player(3);
    player.state.WavFile = u"C:\\s\\b.txt";
    EXPECT_TRUE(player.Start().empty());
    EXPECT_EQ(player.state.SoundPlaying, 1);
    EXPECT_EQ(player.state.SoundOpen, 0);
}

TEST(StartSound, TheSameLinkedFileIsNotStartedAgain) {
    struct Setting {
        int16_t mode;
        bool remembers;
    };
    for (const Setting& setting :
         {Setting{0, false}, {1, true}, {2, true}, {3, false}, {5, true}, {8, false}, {9, true}}) {
        Rig player(setting.mode);
        player.state.CdPlusLinkedWav = 0;
        const Text wav = player.state.LinkedWavPath, media = player.state.LinkedMediaPath;
        const Texts once = player.Start();
        EXPECT_EQ(player.state.LastSoundFile.empty(), !setting.remembers) << setting.mode;
        player.state.LinkedWavPath = wav;
        player.state.LinkedMediaPath = media;
        EXPECT_EQ(player.Start(), setting.remembers ? Texts() : once) << setting.mode;
        EXPECT_EQ(player.state.SoundPlaying, 1) << "the first one plays on";
    }
}

TEST(StartSound, APreviewReplacesEverythingOnce) {
    for (const int16_t mode : {1, 6, 7}) {
        Rig player(mode);
        player.PutList({u"C:\\s\\b.WAV"});
        for (int twice = 0; twice < 2; ++twice) {
            player.state.SoundPreviewFlag = 1;
            player.state.SoundPreviewFile = u"C:\\s\\b.Mid";
            EXPECT_EQ(player.Start(), (Texts{u"open \"C:\\s\\b.Mid\" type sequencer alias wav",
                                             u"play wav from 1"}))
                << mode;
            EXPECT_EQ(player.state.SoundPreviewFlag, 0);
        }
        EXPECT_EQ(player.state.SoundListPos, 0);
        EXPECT_EQ(player.state.LastSoundFile, u"");
    }
}

TEST(StopSound, ClosesEveryAliasAndClearsTheRun) {
    Rig player(1);
    player.Start();
    player.state.SoundPaused = 1;
    player.state.ListMp3Playing = 1;
    player.sound.commands.clear();
    sound::StopSound(player.app);
    EXPECT_EQ(player.sound.commands,
              (Texts{u"stop wav_ren", u"close wav_ren", u"stop wav", u"close wav", u"stop mid",
                     u"close mid", u"stop mp3", u"close mp3"}));
    ASSERT_EQ(player.sound.played.size(), 1u);
    EXPECT_EQ(player.sound.played[0].first, std::nullopt);
    EXPECT_EQ(player.sound.played[0].second, 0);
    for (const int16_t flag : {player.state.SoundOpen, player.state.SoundPlaying,
                               player.state.SoundPaused, player.state.ListMp3Playing}) {
        EXPECT_EQ(flag, 0);
    }
    EXPECT_EQ(player.state.LastSoundFile, u"");
}

TEST(StopSound, WithNothingOpenOnlyCancels) {
    Rig player(1);
    player.state.SoundPlaying = 1;
    player.state.SoundPaused = 1;
    sound::StopSound(player.app);
    EXPECT_TRUE(player.sound.commands.empty());
    EXPECT_EQ(player.sound.played.size(), 1u);
    EXPECT_EQ(player.state.SoundPlaying, 1);
    EXPECT_EQ(player.state.SoundPaused, 1);
}

TEST(StopSound, PutsCaptionAndScrollingTextBackWithoutASlide) {
    struct Setting {
        int16_t index, fullScreen;
        bool restores;
    };
    for (const Setting& setting : {Setting{0, 0, true}, {1, 0, false}, {0, 1, false}}) {
        Rig player(1);
        model::Slidescreen& screen = player.app.windows.slidescreen;
        player.state.SlideIndex = setting.index;
        player.state.FullScreenActive = setting.fullScreen;
        player.state.DocumentPath = u"C:\\a.kvs";
        player.state.TelopRunning = 1;
        player.form1.Timer4.Enabled = true;
        screen.Timer1.Enabled = true;
        for (model::Label* label : {&player.form1.Label1, &screen.Label1}) {
            label->Caption = Text(u"telop");
            label->Visible = true;
        }
        sound::StopSound(player.app);
        EXPECT_EQ(player.form1.Caption() == u"ｽﾗｲﾄﾞ - C:\\a.kvs", setting.restores);
        EXPECT_EQ(player.state.TelopRunning, setting.restores ? 0 : 1);
        for (const model::Timer* timer : {&player.form1.Timer4, &screen.Timer1}) {
            EXPECT_EQ(timer->Enabled(), !setting.restores);
        }
        for (const model::Label* label : {&player.form1.Label1, &screen.Label1}) {
            EXPECT_EQ(label->Caption().empty(), setting.restores);
            EXPECT_EQ(label->Visible(), !setting.restores);
        }
    }
}

TEST(StopSound, WithoutADocumentTheCaptionIsTheProgram) {
    Rig player(7);
    player.state.SlideIndex = 0;
    player.form1.Caption = Text(u"1.png");
    sound::StopSound(player.app);
    EXPECT_EQ(player.form1.Caption(), u"ﾊﾟﾗﾋﾟｺ Win Ver.9.10");
}

TEST(StopSound, ClosesTheVideoWindow) {
    Rig player(7);
    picture::AttachVideoWindow(player.app);
    picture::ShowVideo(player.app, u"C:\\pic\\2.MP4");
    EXPECT_TRUE(player.app.windows.form24.Visible);
    sound::StopSound(player.app);
    EXPECT_FALSE(player.app.windows.form24.Loaded);
    EXPECT_EQ(player.video.path, u"");
}

TEST(SetSoundMode, MovesTheMenusAndStartsBackgroundPieces) {
    struct Setting {
        int mode;
        bool cdMenu, sync, position;
        size_t commands;  // of the new piece
    };
    for (const Setting& setting : {Setting{0, false, true, true, 0},
                                   {1, false, true, true, 0},
                                   {2, true, false, false, 3},  // asks the drive, opens it, ready?
                                   {3, false, false, false, 3},
                                   {4, false, true, true, 2},
                                   {5, false, false, true, 0},
                                   {6, false, true, true, 3},
                                   {8, false, false, false, 3},
                                   {9, false, false, true, 0}}) {
        Rig player(7);
        player.PutList({u"C:\\s\\b.WAV"});
        player.state.MidiLinkedWavFlag = 1;
        sound::SetSoundMode(player.app, setting.mode);
        EXPECT_EQ(player.state.SoundMode, setting.mode);
        EXPECT_TRUE(player.form1.mnuKOU(setting.mode).Checked);
        EXPECT_FALSE(player.form1.mnuKOU(7).Checked);
        EXPECT_EQ(player.form1.mnuCDM.Visible(), setting.cdMenu) << setting.mode;
        EXPECT_EQ(player.form1.mnuDOUKI.Visible(), setting.sync) << setting.mode;
        EXPECT_EQ(player.form1.mnuKOICHI.Visible(), setting.position) << setting.mode;
        EXPECT_EQ(player.sound.commands.size(), setting.commands) << setting.mode;
        EXPECT_EQ(player.sound.played.size(), 1u) << "what played before was stopped";
    }
}

TEST(SetSoundMode, TheSameOrAnImpossibleModeDoesNothing) {
    for (const int mode : {3, -1, 10, 99}) {
        Rig player(3);
        sound::SetSoundMode(player.app, mode);
        EXPECT_EQ(player.state.SoundMode, 3);
        EXPECT_TRUE(player.sound.commands.empty());
        EXPECT_TRUE(player.sound.played.empty());
    }
}

TEST(SetSoundMode, LeavingTheCdStopsIt) {
    Rig player(2);
    sound::SetSoundMode(player.app, 7);
    EXPECT_EQ(player.sound.commands, (Texts{u"stop cdaudio", u"close cdaudio"}));
}

TEST(SetSoundMode, AMacroThatEndedTheStepStartsNothing) {
    Rig player(7);
    player.state.MacroEndShow = 1;
    sound::SetSoundMode(player.app, 3);
    EXPECT_TRUE(player.sound.commands.empty());
}

}  // namespace

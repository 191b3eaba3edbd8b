// Words about video, waves, volume and sound modes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "macro_support.h"
#include "model/windows/main_window.h"
#include "model/windows/video_window.h"
#include "picture/video_window.h"

namespace {

using macro_tests::MacroShow;
using testing::ElementsAre;
using testing::IsEmpty;

struct SoundWords : testing::Test, MacroShow {
    SoundWords() {
        picture::AttachVideoWindow(app);
        fake.files.Put(u"C:\\V\\M.MP4", "");
        state.SoundMode = 8;
    }
    using Plays = std::vector<std::pair<std::optional<Text>, int>>;
    /// Plays the line; answers what it told the player of waves.
    Plays Waves(TextView line) {
        fake.sound.played.clear();
        Play(line);
        return fake.sound.played;
    }
    /// The commands to the sound device, without those of stopping.
    std::vector<Text> Commands(TextView macro) {
        fake.sound.commands.clear();
        Play(macro);
        std::vector<Text> commands;
        for (const Text& command : fake.sound.commands) {
            if (!command.starts_with(u"stop ") && !command.starts_with(u"close ")) {
                commands.push_back(command);
            }
        }
        return commands;
    }
    /// Something of the alias plays until it is stopped.
    void LetPlay(TextView alias) {
        state.SoundOpen = 1;
        fake.sound.answer = [question = u"status " + Text(alias) + u" mode"](TextView command) {
            return command == question ? Text(u"playing") : Text();
        };
    }
};

TEST_F(SoundWords, MovieGoesOnWaitsOrRepeats) {
    app.windows.SetPointer(model::kPointerBusy);
    Play(u"Movie(\"C:\\v\\m.mp4\",0)  //,1)\r\n");
    EXPECT_EQ(Now(), 0);
    EXPECT_EQ(app.windows.Pointer(), model::kPointerNormal);
    EXPECT_TRUE(app.windows.form24.Visible);
    EXPECT_EQ(app.windows.form24.WindowsMediaPlayer1.uiMode(), u"none");
    EXPECT_EQ(app.windows.form24.WindowsMediaPlayer1.URL(), u"C:\\V\\M.MP4");
    EXPECT_EQ(state.MacroMovieActive, 1);
    EXPECT_FALSE(fake.video.looping);
    Play(u"Movie(\"\",0)\r\n");
    EXPECT_FALSE(app.windows.form24.Loaded);
    EXPECT_EQ(fake.video.log.back(), "close");
    Play(u"Movie(\"C:\\v\\m.mp4\",2)\r\n");
    EXPECT_TRUE(fake.video.looping);
    EXPECT_TRUE(app.windows.form24.Visible);
    Play(u"Movie(\"\")\r\n");
    EXPECT_FALSE(fake.video.looping);
    Play(u"Movie(\"C:\\v\\m.mp4\", 1)\r\nCurrentX=7\r\n");
    EXPECT_EQ(Now(), 2000) << "the length of the film";
    EXPECT_FALSE(app.windows.form24.Loaded);
    EXPECT_EQ(form1.Picture1.canvas.penX, 7);
}

TEST_F(SoundWords, MovieOfAnotherNumberOnlyLoads) {
    for (const char16_t* line :
         {u"Movie(\"C:\\v\\m.mp4\",3)", u"Movie(\"C:\\v\\m.mp4\",-1)",
          u"Movie(\"C:\\v\\m.mp4\",1E300)", u"Movie(\"C:\\v\\m.mp4\",0.5)"}) {
        fake.video.log.clear();
        Play(line);
        EXPECT_EQ(fake.video.log.front(), "open C:\\V\\M.MP4");
        EXPECT_FALSE(app.windows.form24.Visible);
    }
    Play(u"Movie(\"C:\\v\\gone.mp4\",1)\r\n");
    EXPECT_EQ(Now(), 0);
    EXPECT_THAT(fake.dialogs.messages, IsEmpty());
}

TEST_F(SoundWords, FilesBesideTheSlideComeFirst) {
    fake.files.Put(u"C:\\show\\film.mp4", "");
    fake.files.Put(u"C:\\show\\parts\\m.mp4", "");
    fake.files.Put(u"C:\\show\\parts\\a.wav", "");
    const struct {
        const char16_t* line;
        const char16_t* opened;
    } films[] = {
        {u"Movie(\"film.mp4\",3)", u"C:\\show\\FILM.MP4"},
        {u"Movie(\"parts\\m.mp4\",3)", u"C:\\show\\PARTS\\M.MP4"},
        // Nothing beside the slide: as it stands.
        {u"Movie(\"gone.mp4\",3)", u"GONE.MP4"},
        {u"Movie(\"x\\gone.mp4\",3)", u"X\\GONE.MP4"},
        {u"Movie(\"C:\\v\\m.mp4\",3)", u"C:\\V\\M.MP4"},
    };
    for (const auto& row : films) {
        Play(row.line);
        EXPECT_EQ(app.windows.form24.WindowsMediaPlayer1.URL(), row.opened);
    }
    EXPECT_EQ(Waves(u"PlayWav(\"parts\\a.wav\",0)\r\n"),
              (Plays{{Text(u"C:\\show\\PARTS\\A.WAV"), 3}}));
    EXPECT_EQ(Waves(u"PlayWav(\"parts\\b.wav\",0)\r\n"), (Plays{{Text(u"PARTS\\B.WAV"), 3}}));
}

TEST_F(SoundWords, WavesPlayOnceWaitOrRepeat) {
    const Text mine = u"C:\\show\\A.WAV";
    EXPECT_EQ(Waves(u"PlayWav(\"a.wav\",0)\r\n"), (Plays{{mine, 3}}));
    EXPECT_EQ(Waves(u"PlayWav(\"a.wav\",1)\r\n"), (Plays{{mine, 2}}));
    EXPECT_EQ(Waves(u"PlayWav(\"a.wav\",2)\r\n"), (Plays{{mine, 11}}));
    EXPECT_EQ(Waves(u"PlayWav(\"a.wav\")  //x,2)\r\n"), (Plays{{mine, 3}}));
    EXPECT_EQ(Waves(u"PlayWav(\"d:\\x\\a.wav\",0)\r\n"), (Plays{{Text(u"D:\\X\\A.WAV"), 3}}));
    EXPECT_EQ(Waves(u"PlayWav(\"a.wav\",3)\r\n"), Plays{});
    EXPECT_EQ(Waves(u"StopWav and more\r\n"), (Plays{{std::nullopt, 0}}));
}

TEST_F(SoundWords, VolumeGoesToWhatTheModePlays) {
    EXPECT_THAT(Commands(u"MP3Vol=50\r\n"), ElementsAre(u"setaudio mp3 volume to 500"));
    EXPECT_EQ(state.Mp3VolumeOffset, 500);
    struct Mode {
        int16_t mode;
        const char16_t* alias;
    };
    for (const Mode& mode : {Mode{1, u"wav"},
                             {2, u"cdaudio"},
                             {3, u"wav"},
                             {4, u"mid"},
                             {5, u"mid"},
                             {6, u"wav"},
                             {8, u"mp3"},
                             {9, u"mp3"}}) {
        state.SoundMode = mode.mode;
        EXPECT_THAT(Commands(u"MP3VOL=12.34"),
                    ElementsAre(u"setaudio " + Text(mode.alias) + u" volume to 123"));
    }
    for (const int16_t mode : {0, 7}) {
        state.SoundMode = mode;
        EXPECT_THAT(Commands(u"MP3VOL=30"), IsEmpty());
        EXPECT_EQ(state.Mp3VolumeOffset, 700);
    }
}

TEST_F(SoundWords, VolumeStaysBetweenSilentAndFull) {
    EXPECT_THAT(Commands(u"MP3Vol=-5\r\nMP3Down\r\nMP3Up\r\n"),
                ElementsAre(u"setaudio mp3 volume to 0", u"setaudio mp3 volume to 0",
                            u"setaudio mp3 volume to 100"));
    EXPECT_THAT(Commands(u"MP3Vol=101\r\nMP3Up\r\nMP3Down\r\n"),
                ElementsAre(u"setaudio mp3 volume to 1000", u"setaudio mp3 volume to 1000",
                            u"setaudio mp3 volume to 900"));
    EXPECT_EQ(state.Mp3VolumeOffset, 100);
    Commands(u"MP3Vol=95\r\nMP3Up\r\n");
    EXPECT_EQ(state.Mp3VolumeOffset, 0);
}

TEST_F(SoundWords, FadeTakesAboutItsSecondsAndStopsAllSound) {
    LetPlay(u"mp3");
    const auto commands = Commands(u"FadeOut=2\r\n");
    // Steps of 50: 950, 900, … 0, -50.
    ASSERT_EQ(commands.size(), 22u);
    EXPECT_EQ(commands[0], u"status mp3 mode");
    EXPECT_EQ(commands[1], u"setaudio mp3 volume to 950");
    EXPECT_EQ(commands[20], u"setaudio mp3 volume to 0");
    EXPECT_EQ(commands[21], u"setaudio mp3 volume to -50");
    EXPECT_EQ(Now(), 2100);
    EXPECT_EQ(fake.loop.sleeps, std::vector<int>(21, 100));
    EXPECT_EQ(state.SoundOpen, 0);
    EXPECT_EQ(fake.sound.commands.back(), u"close mp3");
    EXPECT_EQ(state.SoundVolumeRestart, 1);
    EXPECT_EQ(state.RestartSoundMacro, 1);
}

TEST_F(SoundWords, FadeBeginsAtTheVolumeInForce) {
    LetPlay(u"wav");
    state.SoundMode = 6;
    state.Mp3VolumeOffset = 970;
    // The highest length is 50 s: steps of 2.
    const auto commands = Commands(u"FadeOut=99\r\n");
    ASSERT_EQ(commands.size(), 1u + 16);
    EXPECT_EQ(commands[0], u"status wav mode");
    EXPECT_EQ(commands[1], u"setaudio wav volume to 28");
    EXPECT_EQ(commands.back(), u"setaudio wav volume to -2");
}

TEST_F(SoundWords, FadeOfNothingIsInstant) {
    for (const char16_t* line : {u"FadeOut=0", u"FadeOut=-3", u"FadeOut"}) {
        LetPlay(u"mp3");
        const double start = Now();
        EXPECT_THAT(Commands(line), ElementsAre(u"status mp3 mode", u"setaudio mp3 volume to 0",
                                                u"setaudio mp3 volume to -1000"));
        EXPECT_EQ(Now(), start + 200);
    }
    LetPlay(u"mp3");
    EXPECT_EQ(Commands(u"FadeOut=1E-99").size(), 2u);
}

TEST_F(SoundWords, WithoutSoundNothingFadesButTheNextSlideStartsAnew) {
    state.SoundOpen = 1;
    EXPECT_THAT(Commands(u"FadeOut=5\r\n"), ElementsAre(u"status mp3 mode"));
    EXPECT_EQ(Now(), 0);
    EXPECT_EQ(state.SoundOpen, 0);
    EXPECT_EQ(state.RestartSoundMacro, 1);
}

TEST_F(SoundWords, FadeGivesUpWhenTheShowStops) {
    for (auto flag : {&model::ShowState::StopRequest, &model::ShowState::FullScreenClosed}) {
        LetPlay(u"mp3");
        state.RestartSoundMacro = 0;
        const double start = Now();
        fake.loop.After(250, [&] { state.*flag = 1; });
        Play(u"FadeOut=5\r\nCurrentX=5\r\n");
        EXPECT_EQ(Now(), start + 300);
        EXPECT_EQ(state.RestartSoundMacro, 0);
        EXPECT_EQ(state.SoundOpen, 1) << "whoever stops the show stops it";
        EXPECT_EQ(fake.sound.commands.back(), u"setaudio mp3 volume to 1000");
        EXPECT_EQ(form1.Picture1.canvas.penX, 0);
        state.*flag = 0;
    }
}

TEST_F(SoundWords, SoundModeChangesWithItsMenus) {
    fake.files.Put(u"C:\\show\\x.wav", "RIFF");
    state.WavFile = u"C:\\show\\x.wav";
    state.SoundOpen = 1;
    EXPECT_THAT(Commands(u"SoundSet=3\r\n"),
                ElementsAre(u"open \"C:\\show\\x.wav\" type waveaudio alias wav",
                            u"set wav time format samples", u"play wav from 1"));
    EXPECT_EQ(state.SoundMode, 3);
    EXPECT_TRUE(form1.mnuKOU(3).Checked);
    EXPECT_FALSE(form1.mnuCDM.Visible || form1.mnuDOUKI.Visible || form1.mnuKOICHI.Visible);
    EXPECT_THAT(Commands(u"SoundSet=3\r\nSoundSet=10\r\nSoundSet=-1\r\n"), IsEmpty());
    EXPECT_THAT(Commands(u"SoundSet=9\r\n"), IsEmpty()) << "linked sound comes with its slide";
    EXPECT_TRUE(form1.mnuKOICHI.Visible);
    EXPECT_FALSE(form1.mnuDOUKI.Visible);
    EXPECT_THAT(Commands(u"SoundSet=2\r\n"),
                ElementsAre(u"status cdaudio mode", u"open cdaudio", u"status cdaudio ready"))
        << "no disc is ready";
    EXPECT_TRUE(form1.mnuCDM.Visible);
    EXPECT_TRUE(form1.mnuKOU(2).Checked);
    EXPECT_FALSE(form1.mnuKOU(3).Checked);
}

TEST_F(SoundWords, WaitingForLinkedSoundIsSaidTheOtherWayRound) {
    Play(u"SoundEnd=0\r\n");
    EXPECT_EQ(state.SoundSyncFlag, 1);
    EXPECT_TRUE(form1.mnuDOU(1).Checked);
    Play(u"SoundEnd=1\r\n");
    EXPECT_EQ(state.SoundSyncFlag, 0);
    EXPECT_TRUE(form1.mnuDOU(0).Checked);
    Play(u"SoundEnd=2\r\n");
    EXPECT_EQ(state.SoundSyncFlag, 0);
}

}  // namespace

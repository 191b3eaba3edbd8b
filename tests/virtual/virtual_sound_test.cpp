// Sound and video on the virtual clock.
#include "adapters/virtual/virtual_sound.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "adapters/posix/posix_files.h"
#include "adapters/virtual/virtual_video.h"
#include "platform/wave_format.h"
#include "posix/temporary_folder.h"
#include "support/fake_platform.h"
#include "support/media_bytes.h"
#include "support/sound_files.h"

namespace virtual_adapter {
namespace {

using platform::VideoState;

struct Device {
    TemporaryFolder folder;
    posix_adapter::PosixFiles files{folder.Path("")};
    fakes::FakeTrace trace;
    fakes::TestLoop loop;
    VirtualSound sound{loop};
    VirtualVideo video{trace, loop};

    Device() {
        sound.Follow(files);
        video.Follow(files);
        folder.Put("a b.wav", media::Wav(1000));
        folder.Put("c.mid", media::Midi({media::Note(960)}));
        folder.Put("d.mp3", media::Mp3(100));
        folder.Put("e.mp4", media::Mp4(1500));
        folder.Put("f.avi", "RIFF" + media::Little(100, 4) + "AVI LIST");
        folder.Put("text.wav", "no sound");
    }
    Text Path(const std::string& name) { return text::FromUtf8(folder.Path(name)); }
    Text Send(const Text& command) { return sound.MciSendString(command); }
    Text Open(const std::string& name, const Text& type, const Text& alias) {
        return Send(u"open \"" + Path(name) + u"\" type " + type + u" alias " + alias);
    }
};

TEST(VirtualSound, PlaysForTheLengthOfTheFile) {
    Device device;
    device.Open("a b.wav", u"waveaudio", u"wav");
    EXPECT_EQ(device.Send(u"status wav mode"), u"stopped");
    device.Send(u"set wav time format samples");
    device.Send(u"play wav from 1");
    EXPECT_EQ(device.Send(u"status wav mode"), u"playing");
    device.loop.Sleep(999);
    EXPECT_EQ(device.Send(u"status wav mode"), u"playing");
    device.loop.Sleep(1);
    EXPECT_EQ(device.Send(u"status wav mode"), u"stopped");
    device.Send(u"play wav from 1");
    EXPECT_EQ(device.Send(u"status wav mode"), u"playing");
    device.Send(u"stop wav");
    EXPECT_EQ(device.Send(u"status wav mode"), u"stopped");
    device.Send(u"close wav");
    EXPECT_EQ(device.Send(u"status wav mode"), u"");
}

media::Fate FateOf(const media::SoundFile& file, const Text& type) {
    Device device;
    if (file.name == std::string("folder")) {
        std::filesystem::create_directory(device.folder.Path(file.name));
    } else if (file.name != std::string("gone")) {
        device.folder.Put(file.name, file.bytes);
    }
    device.Open(file.name, type, u"wav");
    if (device.Send(u"status wav mode").empty()) {
        return media::Fate::NotOpened;
    }
    device.Send(u"play wav from 1");
    return device.Send(u"status wav mode") == u"stopped" ? media::Fate::Stopped
                                                         : media::Fate::Plays;
}

TEST(VirtualSound, WhatBecomesOfDamagedFiles) {
    for (const media::SoundFile& file : media::SoundFiles()) {
        SCOPED_TRACE(file.name);
        EXPECT_EQ(FateOf(file, u"waveaudio"), file.waveaudio);
        EXPECT_EQ(FateOf(file, u"sequencer"), file.sequencer);
        EXPECT_EQ(FateOf(file, u"MPEGVideo"), file.mpegVideo);
    }
}

TEST(VirtualSound, SeveralAliasesAtOnce) {
    Device device;
    device.Open("a b.wav", u"waveaudio", u"wav_ren");
    device.Open("c.mid", u"sequencer", u"mid");
    device.Open("d.mp3", u"MPEGVideo", u"mp3");
    device.Send(u"play wav_ren from 1");
    device.Send(u"play mp3 from 1");
    device.loop.Sleep(1500);
    EXPECT_EQ(device.Send(u"status wav_ren mode"), u"stopped");
    EXPECT_EQ(device.Send(u"status mp3 mode"), u"playing");  // 2612 ms
    EXPECT_EQ(device.Send(u"status mid mode"), u"stopped");
    // An alias that is open is not opened again.
    device.Open("a b.wav", u"waveaudio", u"mp3");
    EXPECT_EQ(device.Send(u"status mp3 mode"), u"playing");
}

TEST(VirtualSound, WhatCannotBeOpened) {
    Device device;
    device.Open("gone.wav", u"waveaudio", u"wav");
    device.Open("a b.wav", u"trumpet", u"wav");
    device.Open("a b.wav", u"waveaudio", u"");
    for (const Text command :
         {u"play wav from 1", u"status wav mode", u"stop wav", u"close wav", u"", u"open", u"play",
          u"\"", u"open \"", u"setaudio wav volume to 1000", u"setaudio wav volume to -20"}) {
        EXPECT_EQ(device.Send(command), u"");
    }
}

TEST(VirtualSound, ASynchronousSoundLetsItsLengthPass) {
    struct Setting {
        const char* file;
        int flags;
        double passes;
    };
    for (const Setting& setting : {Setting{"a b.wav", 2, 1000},
                                   {"a b.wav", 0, 1000},
                                   {"a b.wav", 3, 0},
                                   {"a b.wav", 11, 0},
                                   {"text.wav", 2, 0},
                                   {"gone.wav", 2, 0}}) {
        Device device;
        device.sound.SndPlaySound(device.Path(setting.file), setting.flags);
        EXPECT_EQ(device.loop.Milliseconds(), setting.passes) << setting.file << setting.flags;
        EXPECT_EQ(device.loop.pumps > 0, setting.passes > 0);
    }
}

TEST(VirtualSound, ASynchronousSoundIsEndedByTheNextOne) {
    Device device;
    device.loop.At(300, [&] { device.sound.SndPlaySound(std::nullopt, 0); });
    device.sound.SndPlaySound(device.Path("a b.wav"), 2);
    EXPECT_EQ(device.loop.Milliseconds(), 300);
}

TEST(VirtualVideo, PlaysForTheLengthOfTheFile) {
    struct Setting {
        const char* file;
        double milliseconds;
    };
    for (const Setting& setting : {Setting{"e.mp4", 1500}, {"f.avi", 2000}}) {
        Device device;
        device.video.SetUrl(device.Path(setting.file));
        EXPECT_EQ(device.video.Status(), VideoState::Loading);
        device.video.Play();
        EXPECT_EQ(device.video.Status(), VideoState::Playing);
        device.loop.Sleep(static_cast<int>(setting.milliseconds) - 1);
        EXPECT_EQ(device.video.Status(), VideoState::Playing);
        device.loop.Sleep(1);
        EXPECT_EQ(device.video.Status(), VideoState::Stopped);
        device.video.SetLoop(true);
        EXPECT_EQ(device.video.Status(), VideoState::Playing);
        device.video.Close();
        EXPECT_EQ(device.video.Status(), VideoState::Nothing);
        const auto told = device.trace.Of("video");
        ASSERT_EQ(told.size(), 4u);
        EXPECT_EQ(told[0].String("action"), u"open");
        EXPECT_EQ(told[0].String("file"), device.Path(setting.file));
        EXPECT_EQ(told[1].String("action"), u"play");
        EXPECT_EQ(told[1].Number("milliseconds"), setting.milliseconds);
        EXPECT_EQ(told[2].String("action"), u"loop");
        EXPECT_EQ(told[3].String("action"), u"close");
    }
}

TEST(VirtualVideo, WhatIsNoVideoNeverPlays) {
    Device device;
    EXPECT_EQ(device.video.Status(), VideoState::Nothing);
    device.video.Play();
    EXPECT_TRUE(device.trace.lines.empty());
    for (const char* name : {"text.wav", "gone.mp4", "."}) {
        device.video.SetUrl(device.Path(name));
        device.video.Play();
        EXPECT_EQ(device.video.Status(), VideoState::Ready) << name;
    }
}

TEST(VirtualRecorder, SavesSilenceOfTheLengthThatPassed) {
    Device device;
    const Text path = device.Path("say \"hi\".wav");
    EXPECT_FALSE(device.sound.Recording(u"Rec"));
    device.Send(u"open new type waveaudio alias Rec");
    device.Send(
        u"set Rec channels 2 samplespersec 44100 bytespersec 176400 alignment 4 "
        u"bitspersample 16");
    EXPECT_FALSE(device.sound.Recording(u"Rec"));
    device.Send(u"record Rec");
    device.loop.Sleep(1000);
    ASSERT_TRUE(device.sound.Recording(u"Rec"));
    EXPECT_EQ(device.sound.Recording(u"Rec")->milliseconds, 1000);
    EXPECT_EQ(device.sound.Recording(u"Rec")->peak, 0);
    device.Send(u"stop Rec");
    device.loop.Sleep(500);
    EXPECT_FALSE(device.sound.Recording(u"Rec"));
    EXPECT_EQ(device.Send(u"save Rec \"" + path + u"\""), u"saved");
    device.Send(u"close Rec");
    EXPECT_EQ(device.folder.Content("say \"hi\".wav"),
              platform::WaveHeader({2, 44100}, 176400) + std::string(176400, '\0'));
    EXPECT_EQ(device.Send(u"save Rec \"" + path + u"\""), u"") << "it was closed";
}

TEST(VirtualRecorder, SaysWhenItCannotSave) {
    Device device;
    device.Send(u"open new type waveaudio alias Rec");
    device.Send(u"record Rec");
    device.Send(u"stop Rec");
    EXPECT_EQ(device.Send(u"save Rec \"/nowhere/at/all/a.wav\""), u"");
}

}  // namespace
}  // namespace virtual_adapter

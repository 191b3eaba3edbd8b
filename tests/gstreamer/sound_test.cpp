// Command strings through the real players, without a sound card: the silent sink keeps real time.
#include <gtest/gtest.h>

#include <sndfile.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <utility>

#include "gstreamer/gstreamer_support.h"
#include "support/sound_files.h"

namespace {

using namespace gst_tests;

/// Samples that the sink got for one play of the file, once it has stopped.
TestSink Played(const std::string& bytes, const std::string& type = "waveaudio",
                const std::string& name = "a.wav") {
    Studio studio({"testsink"});
    studio.Write(name, bytes);
    studio.Open(name, type, "wav");
    HoldTestSink(Hold::Buffers);
    studio.Send("play wav from 1");
    EXPECT_EQ(studio.Mode("wav"), "playing");
    HoldTestSink(Hold::Nothing);
    EXPECT_TRUE(studio.Stops("wav"));
    return SeenByTestSink();
}

float Loudest(const std::vector<float>& samples) {
    float loudest = 0;
    for (const float sample : samples) {
        loudest = std::max(loudest, std::abs(sample));
    }
    return loudest;
}

TEST(GstSound, PlayingBeginsAtOnceAndTurnsIntoStoppedAtTheEnd) {
    Studio studio;
    studio.Write("long.wav", WaveBytes(Tone(60)));
    studio.Open("long.wav", "waveaudio", "wav");
    EXPECT_EQ(studio.Mode("wav"), "stopped");
    studio.Send("set wav time format samples");
    studio.Send("play wav from 1");
    EXPECT_EQ(studio.Mode("wav"), "playing");
    studio.Write("short.wav", WaveBytes(Tone(0.4)));
    studio.Open("short.wav", "waveaudio", "wav_ren");
    const double start = studio.loop.Milliseconds();
    studio.Send("play wav_ren from 1");
    ASSERT_TRUE(studio.Stops("wav_ren"));
    EXPECT_GE(studio.loop.Milliseconds() - start, 380);
}

TEST(GstSound, AClosedAliasAnswersNothing) {
    Studio studio;
    studio.Write("a.wav", WaveBytes(Tone(5)));
    EXPECT_EQ(studio.Mode("wav"), "");
    studio.Open("a.wav", "waveaudio", "wav");
    studio.Send("play wav from 1");
    studio.Send("stop wav");
    EXPECT_EQ(studio.Mode("wav"), "stopped");
    studio.Send("close wav");
    EXPECT_EQ(studio.Mode("wav"), "");
}

TEST(GstSound, NothingIsOpenedByAMissingFileOrABadCommand) {
    Studio studio;
    studio.Write("a.wav", WaveBytes(Tone(1)));
    const std::string quoted = "\"" + studio.folder.Path("a.wav") + "\"";
    for (const std::string& command :
         {std::string("open \"/nowhere/a.wav\" type waveaudio alias wav"),
          "open " + quoted + " type trumpet alias wav", "open " + quoted + " type waveaudio",
          "open " + quoted + " type waveaudio alias",
          "OPEN " + quoted + " type waveaudio alias wav",
          "open " + quoted.substr(0, quoted.size() - 1), std::string("open"), std::string(),
          std::string("play wav from 1"), std::string("setaudio wav volume to 10")}) {
        EXPECT_EQ(studio.Send(command), u"") << command;
        EXPECT_EQ(studio.Mode("wav"), "") << command;
    }
}

TEST(GstSound, AnOpenAliasIsNotOpenedAgain) {
    Studio studio;
    studio.Write("long.wav", WaveBytes(Tone(60)));
    studio.Write("short.wav", WaveBytes(Tone(0.05)));
    studio.Open("long.wav", "waveaudio", "wav");
    studio.Open("short.wav", "waveaudio", "wav");
    studio.Send("play wav from 1");
    studio.loop.Sleep(300);
    EXPECT_EQ(studio.Mode("wav"), "playing");
}

TEST(GstSound, APieceCanBePlayedAgain) {
    Studio studio({"testsink"});
    studio.Write("a.wav", WaveBytes(Tone(0.25)));
    studio.Open("a.wav", "waveaudio", "wav");
    for (int round = 1; round <= 3; ++round) {
        studio.Send("play wav from 1");
        ASSERT_TRUE(studio.Stops("wav"));
        EXPECT_EQ(SeenByTestSink().samples.size(), 2000u * static_cast<unsigned>(round));
    }
}

TEST(GstSound, SeveralPlayAtOnce) {
    Studio studio;
    studio.Write("long.wav", WaveBytes(Tone(60)));
    studio.Write("short.wav", WaveBytes(Tone(0.2)));
    studio.Write("m.mid", MidiBytes(60000));
    studio.Open("long.wav", "waveaudio", "wav");
    studio.Open("short.wav", "waveaudio", "wav_ren");
    studio.Open("m.mid", "sequencer", "mid");
    for (const char* alias : {"wav", "wav_ren", "mid"}) {
        studio.Send(std::string("play ") + alias + " from 1");
    }
    EXPECT_TRUE(studio.Stops("wav_ren"));
    EXPECT_EQ(studio.Mode("wav"), "playing");
    EXPECT_EQ(studio.Mode("mid"), "playing");
    studio.Send("stop wav");
    EXPECT_EQ(studio.Mode("wav"), "stopped");
    EXPECT_EQ(studio.Mode("mid"), "playing");
}

struct FormatRow {
    WaveForm form;
    size_t frames;
};

TEST(GstSoundFormats, EverySampleOfAWaveFileIsPlayed) {
    const FormatRow rows[] = {{{8000, 1, 8}, 4001},    {{11025, 1, 8}, 999},
                              {{44100, 2, 16}, 22051}, {{48000, 2, 24}, 1001},
                              {{22050, 1, 32}, 3001},  {{8000, 1, 16}, 1}};
    for (const FormatRow& row : rows) {
        const std::vector<float> samples(row.frames * static_cast<size_t>(row.form.channels), 0.5f);
        const TestSink sink = Played(WaveBytes(samples, row.form));
        EXPECT_EQ(sink.rate, row.form.rate);
        EXPECT_EQ(sink.channels, row.form.channels);
        ASSERT_EQ(sink.samples.size(), samples.size()) << row.form.rate << " " << row.form.bits;
        EXPECT_NEAR(sink.samples.front(), 0.5f, 0.01);
        EXPECT_NEAR(sink.samples.back(), 0.5f, 0.01);
    }
}

TEST(GstSoundFormats, JunkAfterTheDataIsNotPlayedAndCutsNothing) {
    const TestSink sink =
        Played(WaveBytes(Tone(0.25)) + std::string("junk\xff\xff\xff\x7f") + std::string(99, 'x'));
    EXPECT_EQ(sink.samples.size(), 2000u);
}

TEST(GstSoundFormats, LyingSizesPlayWhatIsThere) {
    for (const char* lie : {"\xff\xff\xff\x7f", "\xff\xff\xff\xff"}) {
        std::string bytes = WaveBytes(Tone(0.25));
        bytes.replace(40, 4, lie, 4);  // of the data
        bytes.replace(4, 4, lie, 4);   // of the whole file
        EXPECT_EQ(Played(bytes).samples.size(), 2000u);
    }
    std::string half = WaveBytes(Tone(0.25));
    half.resize(44 + 2000);
    EXPECT_EQ(Played(half).samples.size(), 1000u);
}

TEST(GstSoundFormats, AdpcmIsPlayedWhole) {
    for (const int coding : {SF_FORMAT_IMA_ADPCM, SF_FORMAT_MS_ADPCM, SF_FORMAT_ULAW}) {
        TemporaryFolder folder;
        SF_INFO info{};
        info.samplerate = 22050;
        info.channels = 1;
        info.format = SF_FORMAT_WAV | coding;
        SNDFILE* file = sf_open(folder.Path("a.wav").c_str(), SFM_WRITE, &info);
        ASSERT_NE(file, nullptr);
        const std::vector<float> tone = Tone(0.5, {22050, 1, 16});
        sf_writef_float(file, tone.data(), static_cast<sf_count_t>(tone.size()));
        sf_close(file);
        const TestSink sink = Played(folder.Content("a.wav"));
        EXPECT_GE(sink.samples.size(), tone.size());
        EXPECT_LT(sink.samples.size(), tone.size() + 2048);  // whole blocks
        EXPECT_NEAR(Loudest(sink.samples), 0.5, 0.05);
    }
}

TEST(GstSoundFormats, Mp3IsPlayed) {
    TemporaryFolder folder;
    ASSERT_TRUE(
        RunPipeline("audiotestsrc num-buffers=22 samplesperbuffer=1000 volume=0.5 ! "
                    "audio/x-raw,rate=44100,channels=1 ! lamemp3enc ! filesink location=" +
                    folder.Path("a.mp3")));
    const TestSink sink = Played(folder.Content("a.mp3"), "MPEGVideo", "a.mp3");
    EXPECT_GT(sink.samples.size(), 21000u);
    EXPECT_LT(sink.samples.size(), 26000u);
    EXPECT_NEAR(Loudest(sink.samples), 0.5, 0.1);
    // Also under the name of another kind.
    EXPECT_GT(Played(folder.Content("a.mp3"), "waveaudio", "a.wav").samples.size(), 21000u);
}

TEST(GstSoundFormats, MidiIsHeard) {
    const TestSink sink = Played(MidiBytes(400), "sequencer", "a.mid");
    EXPECT_GT(sink.samples.size(), 44100u * 2 * 3 / 10);
    EXPECT_GT(Loudest(sink.samples), 0.02);
}

TEST(GstSoundFormats, GarbageStops) {
    std::string noise;
    for (unsigned i = 0; i < 20000; ++i) {
        noise += static_cast<char>((i * 2654435761u) >> 13);
    }
    const std::string tricky[] = {noise,
                                  "",
                                  "RIFF",
                                  WaveBytes({}),
                                  WaveBytes(Tone(0.1)).substr(0, 30),
                                  "#EXTM3U\n#EXT-X-VERSION:3\n#EXTINF:10,\nhttp://127.0.0.1/a.ts\n",
                                  std::string(100000, '\0')};
    for (const std::string& bytes : tricky) {
        for (const char* type : {"waveaudio", "sequencer", "MPEGVideo"}) {
            Studio studio;
            studio.Write("a.wav", bytes);
            studio.Open("a.wav", type, "wav");
            studio.Send("play wav from 1");
            EXPECT_TRUE(studio.Stops("wav")) << type << " of " << bytes.size();
        }
    }
    // A folder is no file.
    Studio studio;
    std::filesystem::create_directory(studio.folder.Path("a.mp3"));
    studio.Open("a.mp3", "MPEGVideo", "mp3");
    studio.Send("play mp3 from 1");
    EXPECT_TRUE(Eventually([&] { return studio.Mode("mp3") != "playing"; }));
}

media::Fate FateOf(const media::SoundFile& file, const std::string& type) {
    Studio studio({"testsink"});
    if (file.name == std::string("folder")) {
        std::filesystem::create_directory(studio.folder.Path(file.name));
    } else if (file.name != std::string("gone")) {
        studio.Write(file.name, file.bytes);
    }
    studio.Open(file.name, type, "wav");
    if (studio.Mode("wav").empty()) {
        return media::Fate::NotOpened;
    }
    studio.Send("play wav from 1");
    EXPECT_TRUE(studio.Stops("wav"));
    return SeenByTestSink().samples.empty() ? media::Fate::Stopped : media::Fate::Plays;
}

TEST(GstSoundFormats, WhatBecomesOfDamagedFiles) {
    for (const media::SoundFile& file : media::SoundFiles()) {
        SCOPED_TRACE(file.name);
        EXPECT_EQ(FateOf(file, "waveaudio"), file.waveaudio);
        EXPECT_EQ(FateOf(file, "sequencer"), file.sequencer);
        EXPECT_EQ(FateOf(file, "MPEGVideo"), file.mpegVideo);
    }
}

TEST(GstSoundFormats, AbsurdRatesAreRefused) {
    for (const int rate : {1, 2000000000}) {
        Studio studio({"testsink"});
        studio.Write("a.wav",
                     WaveBytes(Tone(0.1), {8000, 1, 16})
                         .replace(24, 4,
                                  std::string{static_cast<char>(rate), static_cast<char>(rate >> 8),
                                              static_cast<char>(rate >> 16),
                                              static_cast<char>(rate >> 24)}));
        studio.Open("a.wav", "waveaudio", "wav");
        studio.Send("play wav from 1");
        EXPECT_TRUE(studio.Stops("wav")) << rate;
        EXPECT_LT(SeenByTestSink().samples.size(), 100000u) << rate;
    }
}

TEST(GstSound, AFileDeletedWhilePlayingPlaysOn) {
    Studio studio({"testsink"});
    const std::string path = studio.Write("a.wav", WaveBytes(Tone(10)));
    studio.Open("a.wav", "waveaudio", "wav");
    HoldTestSink(Hold::Buffers);
    studio.Send("play wav from 1");
    ASSERT_TRUE(Eventually([] { return SeenByTestSink().arrived > 0; }));
    std::filesystem::remove(path);
    HoldTestSink(Hold::Nothing);
    ASSERT_TRUE(studio.Stops("wav"));
    EXPECT_EQ(SeenByTestSink().samples.size(), 80000u);
    // It is gone for the next time, which harms nothing.
    studio.Send("play wav from 1");
    EXPECT_TRUE(studio.Stops("wav"));
}

TEST(GstSound, TheVolumeMovesWithoutSteps) {
    Studio studio({"testsink"});
    studio.Write("a.wav", WaveBytes(std::vector<float>(20000, 0.5f)));
    studio.Open("a.wav", "waveaudio", "mp3");
    studio.Send("setaudio mp3 volume to 500");
    HoldTestSink(Hold::Buffers);
    studio.Send("play mp3 from 1");
    ASSERT_TRUE(Eventually([] { return SeenByTestSink().arrived > 0; }));
    studio.Send("setaudio mp3 volume to 0");
    studio.Send("setaudio mp3 volume to-20");
    studio.Send("setaudio mp3 volume to 1001");
    HoldTestSink(Hold::Nothing);
    ASSERT_TRUE(studio.Stops("mp3"));
    const std::vector<float> samples = SeenByTestSink().samples;
    ASSERT_EQ(samples.size(), 20000u);
    EXPECT_NEAR(samples.front(), 0.25f, 0.003f);
    EXPECT_EQ(samples.back(), 0.0f);
    for (size_t i = 1; i < samples.size(); ++i) {
        ASSERT_LT(std::abs(samples[i] - samples[i - 1]), 0.003f) << i;
    }
}

TEST(GstSound, AVolumeSetBeforePlayIsThatOfTheFirstSample) {
    for (const char* type : {"waveaudio", "MPEGVideo"}) {  // read here, and by the decoder
        Studio studio({"testsink"});
        studio.Write("a.wav", WaveBytes(std::vector<float>(20000, 0.5f), {8000, 1, 32}));
        studio.Open("a.wav", type, "mp3");
        // The way to the sink stands, and the first samples are there to be asked for.
        ASSERT_TRUE(Eventually([] { return SeenByTestSink().rate != 0; }));
        studio.loop.Sleep(100);
        EXPECT_EQ(SeenByTestSink().prerolled, 0) << type;
        studio.Send("setaudio mp3 volume to 500");
        studio.Send("play mp3 from 1");
        ASSERT_TRUE(studio.Stops("mp3"));
        const std::vector<float> samples = SeenByTestSink().samples;
        ASSERT_EQ(samples.size(), 20000u) << type;
        EXPECT_EQ(samples.front(), 0.25f) << type;
        EXPECT_EQ(samples[1023], 0.25f) << type;
    }
}

TEST(GstSound, AConstantVolumeScalesExactly) {
    Studio studio({"testsink"});
    studio.Write("a.wav", WaveBytes(std::vector<float>(20000, 0.5f), {8000, 1, 32}));
    studio.Open("a.wav", "waveaudio", "wav");
    studio.Send("setaudio wav volume to 300");
    studio.Send("play wav from 1");
    ASSERT_TRUE(studio.Stops("wav"));
    EXPECT_NEAR(SeenByTestSink().samples.back(), 0.15f, 1e-4);
}

TEST(GstSound, SynchronousSoundPumpsUntilItsEnd) {
    Studio studio({"testsink"});
    studio.Write("a.wav", WaveBytes(Tone(0.3)));
    HoldTestSink(Hold::Buffers);
    int pumps = 0;
    studio.loop.onPump = [&] {
        if (++pumps == 3) {
            HoldTestSink(Hold::Nothing);
        }
    };
    studio.sound->SndPlaySound(studio.folder.TextPath("a.wav"), 2);
    EXPECT_GE(pumps, 3);
    EXPECT_EQ(SeenByTestSink().samples.size(), 2400u);
}

TEST(GstSound, SynchronousSoundTakesItsTime) {
    Studio studio;
    studio.Write("a.wav", WaveBytes(Tone(0.3)));
    const double start = studio.loop.Milliseconds();
    studio.sound->SndPlaySound(studio.folder.TextPath("a.wav"), 2);
    EXPECT_GE(studio.loop.Milliseconds() - start, 280);
}

TEST(GstSound, ASynchronousSoundIsEndedByAHandler) {
    Studio studio;
    studio.Write("a.wav", WaveBytes(Tone(60)));
    studio.loop.onPump = [&] { studio.sound->SndPlaySound(std::nullopt, 0); };
    studio.sound->SndPlaySound(studio.folder.TextPath("a.wav"), 2);  // returns
}

TEST(GstSound, ALoopedSoundHasNoGap) {
    Studio studio({"testsink"});
    SetTestSink(-1, 1);  // not more than a test can keep
    std::vector<float> ramp;
    for (int i = 0; i < 1500; ++i) {
        ramp.push_back(static_cast<float>(i) / 1500);
    }
    studio.Write("a.wav", WaveBytes(ramp, {8000, 1, 32}));
    studio.sound->SndPlaySound(studio.folder.TextPath("a.wav"), 11);
    ASSERT_TRUE(Eventually([] { return SeenByTestSink().samples.size() > 6000; }));
    studio.sound->SndPlaySound(std::nullopt, 0);
    const std::vector<float> samples = SeenByTestSink().samples;
    for (size_t i = 0; i < 6000; ++i) {
        ASSERT_NEAR(samples[i], ramp[i % ramp.size()], 1e-5) << i;
    }
    // After the end nothing more comes.
    size_t last = 0;
    EXPECT_TRUE(Eventually([&] {
        const size_t before = std::exchange(last, SeenByTestSink().samples.size());
        studio.loop.Sleep(50);
        return before == last;
    }));
}

}  // namespace

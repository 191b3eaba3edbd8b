// How loud pieces are, and their playing from within.
#include "adapters/gstreamer/sound_levels.h"

#include <gtest/gtest.h>

#include "gstreamer/gstreamer_support.h"

namespace {

using namespace gst_tests;
using gst_adapter::LevelsOf;

constexpr auto kGoOn = [] { return true; };

/// Silence, then full.
std::vector<float> Step(size_t silent, size_t loud) {
    std::vector<float> samples(silent, 0.0f);
    samples.resize(silent + loud, 0.999f);
    return samples;
}

TEST(SoundLevels, TheLoudestOfEachPart) {
    TemporaryFolder folder;
    folder.Put("a.wav", WaveBytes(Step(8000, 24000)));
    const std::vector<uint8_t> levels = LevelsOf(folder.Path("a.wav"), 4, kGoOn);
    EXPECT_EQ(levels, (std::vector<uint8_t>{0, 255, 255, 255}));
    // More parts than there are moments: each comes several times.
    EXPECT_EQ(LevelsOf(folder.Path("a.wav"), 1000, kGoOn).size(), 1000u);
}

TEST(SoundLevels, OfMidiAndMp3) {
    TemporaryFolder folder;
    folder.Put("a.mid", MidiBytes(400));
    const std::vector<uint8_t> midi = LevelsOf(folder.Path("a.mid"), 10, kGoOn);
    ASSERT_EQ(midi.size(), 10u);
    EXPECT_GT(*std::max_element(midi.begin(), midi.end()), 4);
    ASSERT_TRUE(
        RunPipeline("audiotestsrc num-buffers=22 samplesperbuffer=1000 volume=0.5 ! "
                    "audio/x-raw,rate=44100,channels=1 ! lamemp3enc ! filesink location=" +
                    folder.Path("a.mp3")));
    const std::vector<uint8_t> mp3 = LevelsOf(folder.Path("a.mp3"), 10, kGoOn);
    ASSERT_EQ(mp3.size(), 10u);
    EXPECT_NEAR(mp3[5], 127, 20);
}

TEST(SoundLevels, NothingOfWhatCannotBePlayedOrIsGivenUp) {
    TemporaryFolder folder;
    folder.Put("text.mp3", "<!DOCTYPE html>");
    folder.Put("empty.wav", "");
    folder.Put("a.wav", WaveBytes(Tone(1)));
    EXPECT_TRUE(LevelsOf(folder.Path("text.mp3"), 10, kGoOn).empty());
    EXPECT_TRUE(LevelsOf(folder.Path("empty.wav"), 10, kGoOn).empty());
    EXPECT_TRUE(LevelsOf(folder.Path("gone.wav"), 10, kGoOn).empty());
    EXPECT_TRUE(LevelsOf(folder.Path("a.wav"), 10, [] { return false; }).empty());
}

/// Samples that the sink gets from the third of four seconds on.
size_t HeardFromThree(const std::string& format) {
    Studio studio({"testsink"});
    studio.Write("a.wav", WaveBytes(Tone(4)));
    studio.Open("a.wav", "waveaudio", "wav");
    studio.Send("set wav time format " + format);
    HoldTestSink(Hold::Buffers);
    studio.Send("play wav from 3000");
    EXPECT_EQ(studio.Mode("wav"), "playing");
    HoldTestSink(Hold::Nothing);
    EXPECT_TRUE(studio.Stops("wav"));
    return SeenByTestSink().samples.size();
}

TEST(GstSound, APieceCanBePlayedFromAMillisecondOn) {
    EXPECT_EQ(HeardFromThree("milliseconds"), 8000u);
    EXPECT_EQ(HeardFromThree("samples"), 32000u) << "from its beginning, as ever";
}

TEST(GstSound, ThePlaceIsToldInMilliseconds) {
    Studio studio;
    studio.Write("a.wav", WaveBytes(Tone(60)));
    studio.Open("a.wav", "waveaudio", "wav");
    studio.Send("play wav from 1");
    EXPECT_EQ(studio.Send("status wav position"), u"");
    studio.Send("set wav time format milliseconds");
    const auto place = [&] { return std::stoi(text::ToUtf8(studio.Send("status wav position"))); };
    EXPECT_LT(place(), 30000);
    EXPECT_TRUE(Eventually([&] { return place() > 0; }));
    studio.Send("play wav from 40000");
    EXPECT_GE(place(), 40000);
    EXPECT_TRUE(Eventually([&] { return place() > 40000; }));
}

}  // namespace

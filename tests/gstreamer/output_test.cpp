// Sound servers that hang, fail and go away; many pieces one after the other.
#include <gtest/gtest.h>

#include <algorithm>

#include "adapters/gstreamer/worker.h"
#include "gstreamer/gstreamer_support.h"

namespace {

using namespace gst_tests;

TEST(GstOutput, AServerThatHangsHoldsUpNobody) {
    // The window's thread is never in the server's hands: 1.5 s would be seen.
    Studio studio({"testsink"});
    SetTestSink(-1, 1500);
    studio.Write("a.wav", WaveBytes(Tone(0.1)));
    double longest = 0;
    const auto timed = [&](const auto& call) {
        const double start = studio.loop.Milliseconds();
        call();
        longest = std::max(longest, studio.loop.Milliseconds() - start);
    };
    for (int round = 0; round < 3; ++round) {
        timed([&] { studio.Open("a.wav", "waveaudio", "wav"); });
        timed([&] { studio.Send("play wav from 1"); });
        timed([&] { EXPECT_EQ(studio.Mode("wav"), "playing"); });
        timed([&] { studio.Send("stop wav"); });
        timed([&] { studio.Send("close wav"); });
        timed([&] { studio.sound->SndPlaySound(studio.folder.TextPath("a.wav"), 3); });
    }
    EXPECT_LT(longest, 500);
    SetTestSink(-1, 0);
    studio.sound.reset();
    EXPECT_TRUE(gst_adapter::WaitForThreads(20000));
}

TEST(GstOutput, WithoutAServerThatWorksASilentOneKeepsTheTime) {
    Studio studio({"no-such-sink"});
    studio.Write("a.wav", WaveBytes(Tone(0.3)));
    studio.Open("a.wav", "waveaudio", "wav");
    const double start = studio.loop.Milliseconds();
    studio.Send("play wav from 1");
    ASSERT_TRUE(studio.Stops("wav"));
    EXPECT_GE(studio.loop.Milliseconds() - start, 280);
}

TEST(GstOutput, ADeviceThatGoesAwayInMidPlayIsGoneOnWithoutFromThere) {
    for (const char* kind : {"waveaudio", "sequencer"}) {
        Studio studio({"testsink"});
        SetTestSink(2, 0);
        studio.Write("a", kind == std::string("waveaudio") ? WaveBytes(Tone(0.6)) : MidiBytes(600));
        studio.Open("a", kind, "wav");
        const double start = studio.loop.Milliseconds();
        studio.Send("play wav from 1");
        ASSERT_TRUE(studio.Stops("wav"));
        // Two buffers ran without taking time; the rest is silent, in real time.
        EXPECT_GE(studio.loop.Milliseconds() - start, 200) << kind;
        EXPECT_EQ(SeenByTestSink().opened, 2) << kind;  // the search, and the one that broke
        // The next piece does not try the broken one again.
        studio.Send("play wav from 1");
        ASSERT_TRUE(studio.Stops("wav"));
        EXPECT_EQ(SeenByTestSink().opened, 2) << kind;
    }
}

TEST(GstOutput, TwoHundredPiecesLeaveNothingBehind) {
    Studio studio;
    studio.Write("a.wav", WaveBytes(Tone(0.2)));
    studio.Write("a.mid", MidiBytes(200));
    studio.Write("bad.mp3", "no music at all");
    const auto round = [&](int number) {
        const char* files[] = {"a.wav", "a.wav", "bad.mp3", "a.wav"};
        const char* types[] = {"waveaudio", "waveaudio", "MPEGVideo", "waveaudio"};
        const bool midi = number % 20 == 0;
        studio.Open(midi ? "a.mid" : files[number % 4], midi ? "sequencer" : types[number % 4],
                    "wav");
        studio.Send("play wav from 1");
        if (number % 3 == 0) {
            studio.loop.Sleep(5);
        }
        studio.Send("stop wav");
        studio.Send("close wav");
    };
    const auto settled = [] { return gst_adapter::WaitForThreads(20000); };
    // The instruments and the library's own stores are filled at first.
    for (int i = 0; i < 200; ++i) {
        round(i);
    }
    ASSERT_TRUE(settled());
    const int descriptors = OpenDescriptors();
    const int threads = Threads();
    const int64_t memory = ResidentKiB();
    for (int i = 0; i < 200; ++i) {
        round(i);
    }
    ASSERT_TRUE(settled());
    // The library keeps a few threads of a pool for a while.
    EXPECT_TRUE(Eventually([&] { return OpenDescriptors() <= descriptors + 4; }))
        << descriptors << " -> " << OpenDescriptors();
    EXPECT_TRUE(Eventually([&] { return Threads() <= threads + 8; }))
        << threads << " -> " << Threads();
#ifndef __SANITIZE_ADDRESS__  // which holds back what was given up
    EXPECT_LT(ResidentKiB() - memory, 20000);
#else
    static_cast<void>(memory);
#endif
}

}  // namespace

// Sound servers that hang, fail and go away; many pieces one after the other.
#include <gtest/gtest.h>

#include "adapters/gstreamer/worker.h"
#include "gstreamer/gstreamer_support.h"

namespace {

using namespace gst_tests;

/// Of the piece that is open as "wav", until it stops by itself.
double MillisecondsOfPlaying(Studio& studio) {
    const double start = studio.loop.Milliseconds();
    studio.Send("play wav from 1");
    EXPECT_TRUE(studio.Stops("wav"));
    return studio.loop.Milliseconds() - start;
}

TEST(GstOutput, AServerThatHangsHoldsUpNobody) {
    // The window's thread is never in the server's hands: every call returns while it hangs.
    Studio studio({"testsink"});
    HoldTestSink(Hold::Opening);
    studio.Write("a.wav", WaveBytes(Tone(0.1)));
    for (int round = 0; round < 3; ++round) {
        studio.Open("a.wav", "waveaudio", "wav");
        studio.Send("play wav from 1");
        EXPECT_EQ(studio.Mode("wav"), "playing");
        studio.Send("stop wav");
        studio.Send("close wav");
        studio.sound->SndPlaySound(studio.folder.TextPath("a.wav"), 3);
        ASSERT_TRUE(Eventually([] { return SeenByTestSink().opened > 0; }));
        EXPECT_EQ(SeenByTestSink().stillOpening, SeenByTestSink().opened) << round;
    }
}

TEST(GstOutput, WhileAServerHangsSilencePasses) {
    Studio studio({"testsink"}, {}, {}, 50);
    HoldTestSink(Hold::Opening);
    studio.Write("a.wav", WaveBytes(Tone(0.3)));
    studio.Open("a.wav", "waveaudio", "wav");
    EXPECT_GE(MillisecondsOfPlaying(studio), 280);
    EXPECT_EQ(SeenByTestSink().opened, 1);
    EXPECT_EQ(SeenByTestSink().stillOpening, 1);
}

TEST(GstOutput, WithoutAServerThatWorksASilentOneKeepsTheTime) {
    Studio studio({"no-such-sink"});
    studio.Write("a.wav", WaveBytes(Tone(0.3)));
    studio.Open("a.wav", "waveaudio", "wav");
    EXPECT_GE(MillisecondsOfPlaying(studio), 280);
}

TEST(GstOutput, ADeviceThatGoesAwayWhilePlayingIsGoneOnWithoutFromThere) {
    for (const char* kind : {"waveaudio", "sequencer"}) {
        Studio studio({"testsink"});
        SetTestSink(2);
        studio.Write("a", kind == std::string("waveaudio") ? WaveBytes(Tone(0.6)) : MidiBytes(600));
        studio.Open("a", kind, "wav");
        // Two buffers ran without taking time; the rest is silent, in real time.
        EXPECT_GE(MillisecondsOfPlaying(studio), 200) << kind;
        EXPECT_EQ(SeenByTestSink().opened, 2) << kind;  // the search, and the one that broke
        // The next piece does not try the broken one again.
        studio.Send("play wav from 1");
        ASSERT_TRUE(studio.Stops("wav"));
        EXPECT_EQ(SeenByTestSink().opened, 2) << kind;
    }
}

TEST(GstOutput, ADeviceThatRefusesAheadOfPlayIsGoneOnWithout) {
    Studio studio({"testsink"});
    MakeTestSinkRefuse();
    studio.Write("a.wav", WaveBytes(Tone(0.3)));
    studio.Open("a.wav", "waveaudio", "wav");
    ASSERT_TRUE(Eventually([] { return SeenByTestSink().refused > 0; }));
    EXPECT_GE(MillisecondsOfPlaying(studio), 280);
    EXPECT_TRUE(SeenByTestSink().samples.empty());
}

TEST(GstOutput, APieceThatWaitsForPlayCanBeLeft) {
    for (const char* leave : {"stop wav", "close wav"}) {
        for (const char* kind : {"waveaudio", "sequencer"}) {
            Studio studio({"testsink"});
            studio.Write("a",
                         kind == std::string("waveaudio") ? WaveBytes(Tone(60)) : MidiBytes(60000));
            studio.Open("a", kind, "wav");
            // After the format come the samples, which wait.
            ASSERT_TRUE(Eventually([] { return SeenByTestSink().rate != 0; }));
            studio.Send(leave);
            studio.sound.reset();
            EXPECT_TRUE(gst_adapter::WaitForThreads(kHangMs)) << leave << " " << kind;
            EXPECT_EQ(SeenByTestSink().prerolled, 0);
            EXPECT_TRUE(SeenByTestSink().samples.empty());
        }
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
    const auto settled = [] { return gst_adapter::WaitForThreads(kHangMs); };
    // The instruments and the library's own stores are filled at first.
    for (int i = 0; i < 200; ++i) {
        round(i);
    }
    ASSERT_TRUE(settled());
    const int descriptors = OpenDescriptors();
    const int threads = Threads();
    const int64_t memory = HeldKiB();
    for (int i = 0; i < 200; ++i) {
        round(i);
    }
    ASSERT_TRUE(settled());
    // The library keeps a few threads of a pool for a while.
    EXPECT_TRUE(Eventually([&] { return OpenDescriptors() <= descriptors + 4; }))
        << descriptors << " -> " << OpenDescriptors();
    EXPECT_TRUE(Eventually([&] { return Threads() <= threads + 8; }))
        << threads << " -> " << Threads();
    EXPECT_TRUE(Eventually([&] { return HeldKiB() - memory < 2000; }))
        << memory << " -> " << HeldKiB();
}

}  // namespace

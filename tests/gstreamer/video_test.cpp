// Video through the real player, in real time, on files made here.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QMetaObject>
#include <algorithm>
#include <cstring>
#include <map>
#include <set>

#include "adapters/gstreamer/gst_video.h"
#include "adapters/gstreamer/library.h"
#include "adapters/gstreamer/worker.h"
#include "gstreamer/gstreamer_support.h"

namespace {

using namespace gst_tests;
using platform::VideoState;

struct Cinema {
    explicit Cinema(std::vector<std::string> sinks = {})
        : files(folder.Path()),
          output(std::make_shared<gst_adapter::AudioOutput>(std::move(sinks),
                                                            std::chrono::milliseconds(kHangMs))),
          video(std::make_unique<gst_adapter::GstVideo>(
              files, output, [](std::function<void()> call) {
                  QMetaObject::invokeMethod(qApp, std::move(call), Qt::QueuedConnection);
              })) {}

    /// A clip of `frames` at 30 a second with sound; false when it cannot be made.
    bool Make(const std::string& name, int frames,
              const std::string& codec = "x264enc tune=zerolatency",
              const std::string& muxer = "mp4mux",
              const std::string& size = "width=160,height=120") {
        return RunPipeline(
            "videotestsrc pattern=ball num-buffers=" + std::to_string(frames) +
            " ! video/x-raw,framerate=30/1," + size + " ! " + codec + " ! " + muxer +
            " name=m ! filesink location=" + folder.Path(name) +
            " audiotestsrc num-buffers=" + std::to_string(frames * 44100 / 30 / 1000) +
            " samplesperbuffer=1000 ! audio/x-raw,rate=44100,channels=1 ! lamemp3enc "
            "! mpegaudioparse ! m.");
    }
    void Open(const std::string& name) { video->SetUrl(folder.TextPath(name)); }
    bool Becomes(VideoState state) {
        return Eventually([&] { return video->Status() == state; });
    }
    /// The picture's bytes, without their address.
    std::string Picture() {
        const platform::VideoFrame frame = video->Frame();
        std::string bytes;
        for (int row = 0; frame.pixels && row < frame.height; ++row) {
            bytes.append(reinterpret_cast<const char*>(frame.pixels) + row * frame.stride,
                         static_cast<size_t>(frame.width) * 4);
        }
        return bytes;
    }

    TemporaryFolder folder;
    posix_adapter::PosixFiles files;
    std::shared_ptr<gst_adapter::AudioOutput> output;
    std::unique_ptr<gst_adapter::GstVideo> video;
};

TEST(GstVideo, PlaysToItsEndWithChangingPictures) {
    const char* const makes[][3] = {{"a.mp4", "x264enc tune=zerolatency", "mp4mux"},
                                    {"a.avi", "avenc_mpeg4", "avimux"},
                                    {"a.mov", "jpegenc", "qtmux"}};
    for (const auto& [name, codec, muxer] : makes) {
        Cinema cinema;
        ASSERT_TRUE(cinema.Make(name, 30, codec, muxer)) << name;
        std::set<std::string> pictures;
        int calls = 0;
        cinema.video->onFrame = [&] {
            ++calls;
            pictures.insert(cinema.Picture());
        };
        EXPECT_EQ(cinema.video->Status(), VideoState::Nothing);
        cinema.video->SetLoop(true);  // however long it takes until enough was seen
        cinema.Open(name);
        EXPECT_EQ(cinema.video->Status(), VideoState::Loading);
        cinema.video->Play();
        ASSERT_TRUE(cinema.Becomes(VideoState::Playing)) << name;
        EXPECT_TRUE(Eventually([&] { return cinema.video->NaturalSize().width == 160; }));
        EXPECT_EQ(cinema.video->NaturalSize().height, 120);
        EXPECT_TRUE(Eventually([&] { return calls > 5 && pictures.size() > 5; })) << name;
        cinema.video->SetLoop(false);
        ASSERT_TRUE(cinema.Becomes(VideoState::Stopped)) << name;
        // Once, from its beginning to its end.
        RealLoop loop;
        const double start = loop.Milliseconds();
        cinema.video->Play();
        ASSERT_TRUE(cinema.Becomes(VideoState::Stopped)) << name;
        EXPECT_GE(loop.Milliseconds() - start, 900) << name;
        cinema.video->Close();
        EXPECT_EQ(cinema.video->Status(), VideoState::Nothing);
        EXPECT_EQ(cinema.video->Frame().pixels, nullptr);
    }
}

TEST(GstVideo, ShowsTheColoursOfTheFile) {
    Cinema cinema;
    ASSERT_TRUE(
        RunPipeline("videotestsrc pattern=red num-buffers=15 ! "
                    "video/x-raw,framerate=30/1,width=64,height=64,pixel-aspect-ratio=2/1 "
                    "! x264enc tune=zerolatency ! mp4mux ! filesink location=" +
                    cinema.folder.Path("red.mp4")));
    cinema.Open("red.mp4");
    ASSERT_TRUE(Eventually([&] { return cinema.video->Frame().pixels != nullptr; }));
    // The first picture is there before Play, and a pixel twice as wide as high counts so.
    EXPECT_EQ(cinema.video->Status(), VideoState::Loading);
    EXPECT_EQ(cinema.video->NaturalSize(), (platform::Size{128, 64}));
    const platform::VideoFrame frame = cinema.video->Frame();
    const QImage image(frame.pixels, frame.width, frame.height, frame.stride, QImage::Format_RGB32);
    const QColor middle = image.pixelColor(32, 32);
    EXPECT_GT(middle.red(), 240);
    EXPECT_LT(middle.green(), 12);
    EXPECT_LT(middle.blue(), 12);
    // The picture outlives the player.
    cinema.video.reset();
    EXPECT_GT(image.pixelColor(10, 10).red(), 240);
}

struct Filmed {
    std::string source;  // with its caps
    bool turned;         // by the note of a telephone: a quarter, with the hands of the clock
    platform::Size natural;
    std::string codec = "jpegenc quality=100";
};

/// A film of one still.
bool MakeStill(Cinema& cinema, const std::string& name, const Filmed& filmed) {
    if (!RunPipeline("videotestsrc num-buffers=5 " + filmed.source + " ! " + filmed.codec +
                     " ! qtmux ! filesink location=" + cinema.folder.Path(name))) {
        return false;
    }
    if (filmed.turned) {
        const std::string quarter("\0\0\0\0\0\1\0\0\0\0\0\0\xFF\xFF\0\0\0\0\0\0", 20);
        std::string bytes = cinema.folder.Content(name);
        bytes.replace(bytes.find("tkhd") + 44, quarter.size(), quarter);
        cinema.folder.Put(name, bytes);
    }
    return true;
}

platform::Size FrameSize(Cinema& cinema) {
    const platform::VideoFrame frame = cinema.video->Frame();
    return {frame.width, frame.height};
}

constexpr const char* kCheckers =
    "pattern=checkers-1 ! video/x-raw,format=I420,framerate=30/1,width=160,height=120";

TEST(GstVideo, PicturesComeFittedToTheRoomHoweverTheyWereFilmed) {
    const Filmed films[] = {
        {kCheckers, false, {160, 120}},
        {std::string(kCheckers) + ",pixel-aspect-ratio=2/1", false, {320, 120}, "x264enc"},
        {"! video/x-raw,framerate=30/1,width=97,height=31", false, {97, 31}},
        {kCheckers, true, {120, 160}},
    };
    for (const Filmed& filmed : films) {
        Cinema cinema;
        ASSERT_TRUE(MakeStill(cinema, "a.mov", filmed)) << filmed.source;
        cinema.video->SetLoop(true);
        cinema.Open("a.mov");
        cinema.video->AwaitSize(kHangMs);
        EXPECT_TRUE(Eventually([&] { return cinema.video->NaturalSize() == filmed.natural; }))
            << filmed.source << cinema.video->NaturalSize().width;
        EXPECT_TRUE(Eventually([&] { return FrameSize(cinema) == filmed.natural; }))
            << "nobody has asked for another size";
        cinema.video->Play();
        for (const platform::Size room :
             {platform::Size{400, 300}, platform::Size{64, 200}, platform::Size{1, 1}}) {
            cinema.video->SetRoom(room);
            const platform::Size wanted = platform::Fitted(filmed.natural, room);
            EXPECT_TRUE(Eventually([&] { return FrameSize(cinema) == wanted; }))
                << filmed.source << " in " << room.width << " x " << room.height << ": "
                << FrameSize(cinema).width << " x " << FrameSize(cinema).height;
        }
        EXPECT_EQ(cinema.video->Status(), VideoState::Playing);
        // The next file comes in the room's size from its first picture on.
        cinema.video->SetRoom({64, 200});
        cinema.Open("a.mov");
        EXPECT_TRUE(Eventually([&] { return cinema.video->Frame().pixels != nullptr; }));
        const platform::Size wanted = platform::Fitted(filmed.natural, {64, 200});
        EXPECT_TRUE(Eventually([&] { return FrameSize(cinema) == wanted; }));
    }
}

TEST(GstVideo, LargeFilmsComeSmallerEvenBeforeARoomIsKnown) {
    Cinema cinema;
    ASSERT_TRUE(MakeStill(cinema, "a.mov",
                          {"! video/x-raw,framerate=30/1,width=4096,height=512", false, {}}));
    cinema.Open("a.mov");
    ASSERT_TRUE(Eventually([&] { return cinema.video->Frame().pixels != nullptr; }));
    EXPECT_EQ(cinema.video->NaturalSize(), (platform::Size{4096, 512}));
    EXPECT_EQ(FrameSize(cinema), (platform::Size{1920, 240}));
}

TEST(GstVideo, SmallerPicturesAreMixedFromAllPixels) {
    // Squares of one pixel, black and white: where pixels were left out one of the two would stand.
    for (const int width : {80, 53, 40}) {
        Cinema cinema;
        ASSERT_TRUE(MakeStill(cinema, "a.mov", {kCheckers, false, {}}));
        cinema.video->SetRoom({width, 1000});
        cinema.Open("a.mov");
        ASSERT_TRUE(Eventually([&] { return FrameSize(cinema).width == width; }));
        const platform::VideoFrame frame = cinema.video->Frame();
        const QImage image(frame.pixels, frame.width, frame.height, frame.stride,
                           QImage::Format_RGB32);
        int darkest = 255, brightest = 0;
        for (int y = 2; y < image.height() - 2; ++y) {
            for (int x = 2; x < image.width() - 2; ++x) {
                const int grey = image.pixelColor(x, y).green();
                darkest = std::min(darkest, grey);
                brightest = std::max(brightest, grey);
            }
        }
        EXPECT_GT(darkest, 70) << width;
        EXPECT_LT(brightest, 185) << width;
    }
}

TEST(GstVideo, WaitingForTheSizeOfWhatHasNoneEnds) {
    Cinema cinema;
    RealLoop loop;
    cinema.folder.Put("noise.avi", std::string(5000, 'x'));
    const double start = loop.Milliseconds();
    for (const char* name : {"noise.avi", "missing.avi"}) {
        cinema.Open(name);
        cinema.video->AwaitSize(kHangMs);
    }
    cinema.video->Close();
    cinema.video->AwaitSize(kHangMs);
    EXPECT_LT(loop.Milliseconds() - start, kHangMs);
    EXPECT_EQ(cinema.video->NaturalSize(), platform::Size{});
}

TEST(GstVideo, LoopsUntilItIsToldNotTo) {
    Cinema cinema;
    ASSERT_TRUE(cinema.Make("a.mp4", 9));
    cinema.video->SetLoop(true);
    cinema.Open("a.mp4");
    cinema.video->Play();
    ASSERT_TRUE(cinema.Becomes(VideoState::Playing));
    RealLoop loop;
    const double start = loop.Milliseconds();
    EXPECT_TRUE(Eventually([&] { return loop.Milliseconds() - start > 1500; }));
    EXPECT_EQ(cinema.video->Status(), VideoState::Playing);
    cinema.video->SetLoop(false);
    EXPECT_TRUE(cinema.Becomes(VideoState::Stopped));
    cinema.video->SetLoop(true);
    cinema.video->Play();
    EXPECT_TRUE(cinema.Becomes(VideoState::Playing));
}

TEST(GstVideo, WhatCannotPlayIsReady) {
    Cinema cinema;
    ASSERT_TRUE(cinema.Make("whole.mp4", 30));
    const std::string whole = cinema.folder.Content("whole.mp4");
    cinema.folder.Put("half.mp4", whole.substr(0, whole.size() / 2));  // its index is at the end
    cinema.folder.Put("empty.mp4", "");
    cinema.folder.Put("noise.avi", std::string(5000, 'x'));
    cinema.folder.Put("list.mp4", "#EXTM3U\n#EXTINF:10,\nhttp://127.0.0.1:9/a.ts\n");
    for (const char* name : {"half.mp4", "empty.mp4", "noise.avi", "list.mp4", "missing.mp4"}) {
        cinema.Open(name);
        cinema.video->Play();
        EXPECT_TRUE(cinema.Becomes(VideoState::Ready)) << name;
        // Nor at a second try.
        cinema.video->Play();
        EXPECT_TRUE(cinema.Becomes(VideoState::Ready)) << name;
    }
    cinema.video->SetUrl({});
    EXPECT_EQ(cinema.video->Status(), VideoState::Nothing);
}

TEST(GstVideo, ATruncatedVideoEndsWhereItBreaksOff) {
    Cinema cinema;
    ASSERT_TRUE(cinema.Make("whole.avi", 60, "avenc_mpeg4", "avimux"));
    const std::string whole = cinema.folder.Content("whole.avi");
    cinema.folder.Put("half.avi", whole.substr(0, whole.size() / 2));
    cinema.Open("half.avi");
    cinema.video->Play();
    EXPECT_TRUE(cinema.Becomes(VideoState::Stopped));
}

TEST(GstVideo, DamageNeverHangs) {
    Cinema cinema;
    ASSERT_TRUE(cinema.Make("whole.mp4", 10));
    const std::string whole = cinema.folder.Content("whole.mp4");
    unsigned random = 1;
    for (int round = 0; round < 25; ++round) {
        std::string bytes = whole;
        for (int change = 0; change < 20; ++change) {
            random = random * 1664525u + 1013904223u;
            bytes[(random >> 8) % bytes.size()] = static_cast<char>(random >> 3);
        }
        cinema.folder.Put("bad.mp4", bytes);
        cinema.Open("bad.mp4");
        cinema.video->Play();
        // A changed duration may make a clip long; it is only asked to begin or to give up.
        EXPECT_TRUE(Eventually([&] { return cinema.video->Status() != VideoState::Loading; }))
            << round;
    }
}

TEST(GstVideo, ASoundDeviceThatGoesAwayDoesNotStopThePictures) {
    ResetTestSink();
    SetTestSink(2);
    Cinema cinema({"testsink"});
    ASSERT_TRUE(cinema.Make("a.mp4", 30));
    cinema.Open("a.mp4");
    RealLoop loop;
    const double start = loop.Milliseconds();
    cinema.video->Play();
    ASSERT_TRUE(cinema.Becomes(VideoState::Stopped));
    EXPECT_GE(loop.Milliseconds() - start, 900) << "the whole second, in real time";
    EXPECT_GT(SeenByTestSink().arrived, 2) << "the device was there, and broke";
}

/// Milliseconds that calls take: the middle one is told apart from the machine's own hiccups.
struct CallTimes {
    RealLoop& loop;
    std::vector<double> taken;
    template <class Call>
    void operator()(Call call) {
        const double start = loop.Milliseconds();
        call();
        taken.push_back(loop.Milliseconds() - start);
    }
    double Middle() {
        std::sort(taken.begin(), taken.end());
        return taken[taken.size() / 2];
    }
};

TEST(GstVideo, NoCallHoldsUpTheWindow) {
    Studio studio;
    Cinema cinema;
    studio.Write("a.wav", WaveBytes(Tone(0.5)));
    studio.Write("a.mid", MidiBytes(400));
    studio.Write("cut.mp3", "ID3\x04");
    ASSERT_TRUE(cinema.Make("a.mp4", 10));
    // The program does so at its start: while a thread loads a library no other one can begin.
    gst_adapter::WarmUp();
    ASSERT_TRUE(gst_adapter::WaitForThreads(kHangMs));
    std::map<std::string, CallTimes> times;
    const auto timed = [&](const char* what, auto call) {
        times.try_emplace(what, CallTimes{studio.loop, {}}).first->second(call);
    };
    for (int round = 0; round < 30; ++round) {
        const char* files[] = {"a.wav", "a.mid", "cut.mp3"};
        const char* types[] = {"waveaudio", "sequencer", "MPEGVideo"};
        const int kind = round % 3;
        timed("open", [&] { studio.Open(files[kind], types[kind], "wav"); });
        timed("play", [&] { studio.Send("play wav from 1"); });
        timed("status", [&] { studio.Send("status wav mode"); });
        timed("setaudio", [&] { studio.Send("setaudio wav volume to 500"); });
        timed("SndPlaySound",
              [&] { studio.sound->SndPlaySound(studio.folder.TextPath("a.wav"), 3); });
        timed("SetUrl", [&] { cinema.Open("a.mp4"); });
        timed("Play", [&] { cinema.video->Play(); });
        studio.loop.Sleep(round % 4 * 20);
        timed("Status", [&] { cinema.video->Status(); });
        timed("Frame", [&] { cinema.video->Frame(); });
        timed("Close", [&] { cinema.video->Close(); });
        timed("stop", [&] { studio.Send("stop wav"); });
        timed("close", [&] { studio.Send("close wav"); });
        timed("cancel", [&] { studio.sound->SndPlaySound(std::nullopt, 0); });
    }
    for (auto& [what, time] : times) {
        EXPECT_LT(time.Middle(), 5) << what;
        RecordProperty("call_" + what, std::to_string(time.Middle()) + " ms, at most " +
                                           std::to_string(time.taken.back()) + " ms");
    }
}

TEST(GstVideo, OpeningAndClosingLeavesNothingBehind) {
    Cinema cinema;
    ASSERT_TRUE(cinema.Make("a.mp4", 10));
    const auto rounds = [&](int count) {
        for (int round = 0; round < count; ++round) {
            cinema.video->SetLoop(true);
            cinema.Open("a.mp4");
            cinema.video->Play();
            if (round % 4 == 0) {
                EXPECT_TRUE(cinema.Becomes(VideoState::Playing));
            }
            cinema.video->Close();
        }
        EXPECT_TRUE(gst_adapter::WaitForThreads(kHangMs));
    };
    rounds(40);
    const int descriptors = OpenDescriptors();
    const int threads = Threads();
    const int64_t memory = HeldKiB();
    rounds(60);
    EXPECT_TRUE(Eventually([&] { return OpenDescriptors() <= descriptors + 4; }));
    EXPECT_TRUE(Eventually([&] { return Threads() <= threads + 8; }));
    EXPECT_TRUE(Eventually([&] { return HeldKiB() - memory < 3000; }))
        << memory << " -> " << HeldKiB();
}

}  // namespace

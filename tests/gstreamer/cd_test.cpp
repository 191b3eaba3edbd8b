// cdaudio: a disc made up here, and an image that the reader of discs opens.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>

#include "gstreamer/gstreamer_support.h"
#ifdef PARAPICO_HAS_CD
#include "adapters/cdio/cdio_disc.h"
#endif

namespace {

using namespace gst_tests;
using gst_adapter::Disc;
using gst_adapter::DiscTrack;

/// The sample of a frame tells its sector.
class MadeUpDisc : public Disc {
public:
    explicit MadeUpDisc(std::vector<DiscTrack> of) { tracks = std::move(of); }
    bool Read(int sector, int count, int16_t* frames) override {
        for (int i = 0; i < count; ++i) {
            std::fill_n(frames + i * gst_adapter::kFramesPerSector * 2,
                        gst_adapter::kFramesPerSector * 2, static_cast<int16_t>(sector + i));
        }
        return true;
    }
};

gst_adapter::OpenDisc Holding(std::vector<DiscTrack> tracks) {
    return [tracks](const std::string&) { return std::make_unique<MadeUpDisc>(tracks); };
}

const std::vector<DiscTrack> kThreeTracks = {{0, 20, true}, {20, 30, true}, {50, 10, true}};

std::string Ask(Studio& studio, const std::string& what) {
    return text::ToUtf8(studio.Send("status cdaudio " + what));
}

/// First sector, last sector and number of sectors that were heard.
std::vector<int> Heard() {
    const std::vector<float> samples = SeenByTestSink().samples;
    if (samples.empty()) {
        return {};
    }
    const auto sector = [](float sample) { return static_cast<int>(sample * 32768); };
    return {sector(samples.front()), sector(samples.back()),
            static_cast<int>(samples.size() / (gst_adapter::kFramesPerSector * 2))};
}

TEST(GstCd, AClosedDeviceAnswersNothing) {
    Studio studio({}, Holding(kThreeTracks));
    for (const char* what : {"ready", "mode", "position", "number of tracks", "current track"}) {
        EXPECT_EQ(Ask(studio, what), "") << what;
    }
}

TEST(GstCd, WithoutADiscItIsNotReady) {
    for (const gst_adapter::OpenDisc& open :
         {gst_adapter::OpenDisc(),
          gst_adapter::OpenDisc([](const std::string&) { return std::unique_ptr<Disc>(); })}) {
        Studio studio({}, open);
        studio.Send("open cdaudio");
        EXPECT_EQ(Ask(studio, "ready"), "false");
        EXPECT_EQ(Ask(studio, "mode"), "not ready");
        EXPECT_EQ(Ask(studio, "number of tracks"), "");
        studio.Send("play cdaudio from 1");
        EXPECT_EQ(Ask(studio, "mode"), "not ready");
    }
}

TEST(GstCd, ADiscThatIsPutInLaterIsFoundByTheNextOpening) {
    std::atomic<bool> in{false};
    Studio studio({}, [&](const std::string&) {
        return in ? std::make_unique<MadeUpDisc>(kThreeTracks) : nullptr;
    });
    studio.Send("open cdaudio");
    EXPECT_EQ(Ask(studio, "ready"), "false");
    in = true;
    studio.Send("open cdaudio");
    EXPECT_EQ(Ask(studio, "ready"), "true");
}

/// Can be read up to a sector, as if it was taken out then.
class LostDisc : public MadeUpDisc {
public:
    LostDisc(std::vector<DiscTrack> of, int readable)
        : MadeUpDisc(std::move(of)), readable_(readable) {}
    bool Read(int sector, int count, int16_t* frames) override {
        return sector < readable_ && MadeUpDisc::Read(sector, count, frames);
    }

private:
    int readable_;
};

TEST(GstCd, ADiscThatWasTakenOutStopsAndIsLookedForAgain) {
    std::atomic<int> asked{0};
    Studio studio({"testsink"}, [&](const std::string&) -> std::unique_ptr<Disc> {
        ++asked;
        const std::vector<DiscTrack> tracks{{0, 400, true}, {400, 400, true}};
        return asked == 1 ? std::make_unique<LostDisc>(tracks, 32) : nullptr;
    });
    studio.Send("open cdaudio");
    EXPECT_EQ(Ask(studio, "ready"), "true");
    studio.Send("set cdaudio time format tmsf");
    studio.Send("play cdaudio from 1 to 2");
    ASSERT_TRUE(studio.Stops("cdaudio"));
    EXPECT_EQ(Heard()[2], 32 + 5 * 16) << "silence, until it is given up";
    studio.Send("open cdaudio");
    EXPECT_EQ(Ask(studio, "ready"), "false");
    EXPECT_EQ(asked, 2);
}

TEST(GstCd, ADiscThatIsThereIsAskedForOnce) {
    std::atomic<int> asked{0};
    Studio studio({}, [&](const std::string&) {
        ++asked;
        return std::make_unique<MadeUpDisc>(kThreeTracks);
    });
    for (int i = 0; i < 3; ++i) {
        studio.Send("open cdaudio");
        EXPECT_EQ(Ask(studio, "length track 2"), "00:00:30");
    }
    EXPECT_EQ(asked, 1);
}

TEST(GstCd, TracksArePlayedAndTheDeviceStopsAfterThem) {
    struct Row {
        const char* range;
        std::vector<int> heard;
    };
    const Row rows[] = {{"2 to 3", {20, 49, 30}},
                        {" 2 to 3", {20, 49, 30}},
                        {"2", {20, 59, 40}},
                        {"1", {0, 59, 60}},
                        {"3", {50, 59, 10}},
                        {"1:00:00:05 to 2", {5, 19, 15}},
                        {"2:00:00:10 to 2:00:00:12", {30, 31, 2}}};
    for (const Row& row : rows) {
        Studio studio({"testsink"}, Holding(kThreeTracks));
        studio.Send("open cdaudio");
        EXPECT_EQ(Ask(studio, "ready"), "true");
        EXPECT_EQ(Ask(studio, "number of tracks"), "3");
        EXPECT_EQ(Ask(studio, "mode"), "stopped");
        studio.Send("set cdaudio time format tmsf");
        HoldTestSink(Hold::Buffers);
        studio.Send(std::string("play cdaudio from ") + row.range);
        EXPECT_EQ(Ask(studio, "mode"), "playing");
        HoldTestSink(Hold::Nothing);
        ASSERT_TRUE(studio.Stops("cdaudio"));
        EXPECT_EQ(Heard(), row.heard) << row.range;
    }
}

TEST(GstCd, AVolumeSetBeforePlayIsThatOfTheFirstSample) {
    Studio studio({"testsink"}, Holding({{0, 20000, true}, {20000, 30, true}}));
    studio.Send("open cdaudio");
    studio.Send("set cdaudio time format tmsf");
    studio.Send("setaudio cdaudio volume to 500");
    studio.Send("play cdaudio from 2");
    ASSERT_TRUE(studio.Stops("cdaudio"));
    const std::vector<float> samples = SeenByTestSink().samples;
    ASSERT_FALSE(samples.empty());
    EXPECT_EQ(samples.front(), 10000.0f / 32768);
    EXPECT_EQ(samples[1], 10000.0f / 32768);
}

TEST(GstCd, PlacesBeyondTheDiscPlayNothing) {
    Studio studio({"testsink"}, Holding(kThreeTracks));
    studio.Send("open cdaudio");
    studio.Send("set cdaudio time format tmsf");
    for (const char* range : {"4", "0", "-1", "", "x", "3 to 2", "1:99:00:00", "2 to 4"}) {
        studio.Send(std::string("play cdaudio from ") + range);
        EXPECT_EQ(Ask(studio, "mode"), "stopped") << range;
    }
}

TEST(GstCd, TracksOfDataAreLeftOut) {
    Studio studio({"testsink"},
                  Holding({{0, 20, false}, {20, 5, true}, {25, 9, false}, {34, 2, true}}));
    studio.Send("open cdaudio");
    studio.Send("set cdaudio time format tmsf");
    studio.Send("play cdaudio from 1");
    ASSERT_TRUE(studio.Stops("cdaudio"));
    EXPECT_EQ(Heard(), (std::vector<int>{20, 35, 7}));
}

TEST(GstCd, ThePositionMovesAndStaysAfterAStop) {
    Studio studio({}, Holding({{0, 750, true}, {750, 7500, true}}));
    studio.Send("open cdaudio");
    studio.Send("set cdaudio time format tmsf");
    EXPECT_EQ(Ask(studio, "position"), "01:00:00:00");
    studio.Send("play cdaudio from 2");
    EXPECT_EQ(Ask(studio, "current track"), "2");
    EXPECT_EQ(Ask(studio, "position").substr(0, 5), "02:00");
    ASSERT_TRUE(Eventually([&] { return Ask(studio, "position").substr(0, 8) >= "02:00:01"; }));
    studio.Send("stop cdaudio");
    const std::string position = Ask(studio, "position");
    EXPECT_EQ(Ask(studio, "mode"), "stopped");
    EXPECT_GE(position.substr(0, 8), "02:00:01");
    studio.loop.Sleep(150);
    EXPECT_EQ(Ask(studio, "position"), position);
    studio.Send("close cdaudio");
    EXPECT_EQ(Ask(studio, "position"), "");
}

#ifdef PARAPICO_HAS_CD

/// Two tracks of 160 and 150 sectors; the second begins with the sample 1000.
std::string WriteImage(const Studio& studio) {
    constexpr size_t kSectorBytes = 2352;
    std::string bytes(kSectorBytes * 310, '\0');
    for (size_t i = 160 * kSectorBytes; i < bytes.size(); i += 2) {
        const auto sample = static_cast<uint16_t>(1000 + (i / 2) % 7);
        bytes[i] = static_cast<char>(sample & 0xff);
        bytes[i + 1] = static_cast<char>(sample >> 8);
    }
    studio.folder.Put("disc.bin", bytes);
    studio.folder.Put("disc.cue",
                      "FILE \"disc.bin\" BINARY\n  TRACK 01 AUDIO\n    INDEX 01 00:00:00\n"
                      "  TRACK 02 AUDIO\n    INDEX 01 00:02:10\n");
    return studio.folder.Path("disc.cue");
}

TEST(GstCd, AnImageIsReadSampleBySample) {
    std::string device;
    Studio studio({"testsink"}, [&](const std::string&) { return cdio_adapter::OpenDisc(device); });
    device = WriteImage(studio);
    studio.Send("open cdaudio");
    ASSERT_EQ(Ask(studio, "ready"), "true");
    EXPECT_EQ(Ask(studio, "number of tracks"), "2");
    studio.Send("set cdaudio time format tmsf");
    studio.Send("play cdaudio from 2");
    ASSERT_TRUE(studio.Stops("cdaudio"));
    const std::vector<float> samples = SeenByTestSink().samples;
    ASSERT_EQ(samples.size(), 150u * 588 * 2);
    for (size_t i = 0; i < samples.size(); ++i) {
        const size_t place = 160u * 1176 + i;
        ASSERT_EQ(samples[i], static_cast<float>(1000 + place % 7) / 32768) << i;
    }
}

TEST(GstCd, WhatIsNoDiscIsNotReady) {
    for (const std::string& content :
         {std::string(), std::string("FILE \"none.bin\" BINARY\n"), std::string(4000, 'x')}) {
        TemporaryFolder folder;
        folder.Put("disc.cue", content);
        EXPECT_EQ(cdio_adapter::OpenDisc(folder.Path("disc.cue")), nullptr);
        EXPECT_EQ(cdio_adapter::OpenDisc(folder.Path("missing.cue")), nullptr);
        EXPECT_EQ(cdio_adapter::OpenDisc(folder.Path()), nullptr);
    }
}

#endif

}  // namespace

// A show's CD, heard: an image with three tones is played in order, at random and by programme.
#include <gtest/gtest.h>

#ifdef PARAPICO_HAS_CD

#include <cmath>
#include <string>
#include <vector>

#include "adapters/cdio/cdio_disc.h"
#include "gstreamer/gstreamer_support.h"
#include "model/application.h"
#include "model/controls.h"
#include "model/windows/main_window.h"
#include "playback/step_sound.h"
#include "sound/cd.h"
#include "support/fake_platform.h"

namespace {

using namespace gst_tests;
using Numbers = std::vector<int>;

constexpr int kTones[] = {441, 882, 1764};  // Hz, of the tracks 1 to 3
constexpr int kSectorsOfTrack = 300;
constexpr int kFramesOfTrack = kSectorsOfTrack * gst_adapter::kFramesPerSector;

/// Three tracks of 4 s, each a square wave of its tone.
std::string WriteTones(const Studio& studio) {
    std::string bytes;
    std::string cue = "FILE \"tones.bin\" BINARY\n";
    for (int track = 0; track < 3; ++track) {
        for (int frame = 0; frame < kFramesOfTrack; ++frame) {
            const bool high = frame * 2 * kTones[track] / gst_adapter::kDiscRate % 2 == 0;
            const auto sample = static_cast<uint16_t>(high ? 8000 : -8000);
            for (int channel = 0; channel < 2; ++channel) {
                bytes += static_cast<char>(sample & 0xff);
                bytes += static_cast<char>(sample >> 8);
            }
        }
        cue += "  TRACK 0" + std::to_string(track + 1) + " AUDIO\n    INDEX 01 00:0" +
               std::to_string(4 * track) + ":00\n";
    }
    studio.folder.Put("tones.bin", bytes);
    studio.folder.Put("tones.cue", cue);
    return studio.folder.Path("tones.cue");
}

/// The track whose tone is nearest to what a track's length of samples sounds like.
int TrackOf(const std::vector<float>& samples, size_t from) {
    int crossings = 0;
    for (size_t i = 1; i < static_cast<size_t>(kFramesOfTrack); ++i) {
        crossings += (samples[from + 2 * i] > 0) != (samples[from + 2 * (i - 1)] > 0) ? 1 : 0;
    }
    const double tone = crossings / 2.0 * gst_adapter::kDiscRate / kFramesOfTrack;
    int nearest = 0;
    for (int track = 1; track < 3; ++track) {
        nearest =
            std::abs(kTones[track] - tone) < std::abs(kTones[nearest] - tone) ? track : nearest;
    }
    return std::abs(kTones[nearest] - tone) < 5 ? nearest + 1 : 0;
}

/// A show with the image in its drive. Time passes only by the tracks' ends.
struct ToneShow {
    std::string image;
    Studio studio{{"testsink"},
                  [this](const std::string&) { return cdio_adapter::OpenDisc(image); }};
    fakes::FakePlatform around;
    model::Application app{platform::Platform{
        around.loop, around.files, around.dialogs, around.monitors, around.imaging,
        around.textRenderer, *studio.sound, around.video, around.system, around.trace,
        around.codePage, around.folders, around.fileChanges, around.clipboard, around.wallpaper,
        around.thumbnails, around.fileInquiry}};

    ToneShow() {
        image = WriteTones(studio);
        model::ZeroReset(app.state);
        model::SetStartDefaults(app.state);
        app.state.SoundMode = 2;
        app.state.SlideIndex = 2;
        app.windows.form1.Command1.Enabled = false;
    }
    /// START, and a slide after the end of each track.
    void Play(int tracks) {
        sound::StartCd(app);
        for (int i = 0; i < tracks; ++i) {
            ASSERT_TRUE(studio.Stops("cdaudio"));
            if (i + 1 < tracks) {
                playback::PollCd(app);
            }
        }
    }
    /// The tracks that were heard, each whole.
    static Numbers Heard() {
        const std::vector<float> samples = SeenByTestSink().samples;
        constexpr size_t kLength = size_t{2} * kFramesOfTrack;
        EXPECT_EQ(samples.size() % kLength, 0u);
        Numbers tracks;
        for (size_t from = 0; from + kLength <= samples.size(); from += kLength) {
            tracks.push_back(TrackOf(samples, from));
        }
        return tracks;
    }
};

TEST(CdShow, TracksAreHeardInTheirOrderAndAgain) {
    ToneShow show;
    show.Play(5);
    EXPECT_EQ(show.Heard(), (Numbers{1, 2, 3, 1, 2}));
}

TEST(CdShow, ARepeatedTrackIsHeardAgainAndAgain) {
    for (const int track : {2, 3}) {
        ToneShow show;
        show.app.state.CdRepeatFlag = 0;
        show.app.state.CdTrackSetting = track == 2 ? u"2" : u"3";
        show.Play(3);
        EXPECT_EQ(show.Heard(), (Numbers{track, track, track}));
    }
}

TEST(CdShow, DrawnTracksAreHeard) {
    ToneShow show;
    show.app.state.CdOrder = 1;
    show.around.loop.randomNumbers = {0.9, 0.4, 0.4, 0.1};
    show.Play(4);
    EXPECT_EQ(show.Heard(), (Numbers{3, 2, 2, 1}));
}

TEST(CdShow, AProgrammeIsHeardToItsEnd) {
    ToneShow show;
    model::ShowState& state = show.app.state;
    state.CdOrder = 2;
    state.CdProgramStop = 1;
    for (const Text entry : {u"3", u"1", u"3"}) {
        state.CdProgram.Set(++state.CdProgramCount, entry);
    }
    show.Play(3);
    EXPECT_EQ(state.ShowAbort, 0);
    playback::PollCd(show.app);
    EXPECT_EQ(state.ShowAbort, 1);
    EXPECT_EQ(show.Heard(), (Numbers{3, 1, 3}));
}

TEST(CdShow, AfterAPauseItsTrackIsHeardFromTheBeginning) {
    ToneShow show;
    show.Play(2);
    show.app.state.CdPaused = 1;
    show.app.state.CdPausedTrack = u"2";
    show.Play(2);
    EXPECT_EQ(show.Heard(), (Numbers{1, 2, 2, 3}));
}

}  // namespace

#endif

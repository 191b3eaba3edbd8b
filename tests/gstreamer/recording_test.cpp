// Recording: from a real sound server with a microphone that hums, and from microphones that fail.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <cstring>
#include <filesystem>

#include "gstreamer/gstreamer_support.h"
#include "platform/wave_format.h"

namespace gst_tests {
namespace {

using gst_adapter::Microphones;
using std::chrono::milliseconds;

const std::string kHum = "audiotestsrc is-live=true wave=sine freq=440 volume=0.5";

struct RecordingStudio : Studio {
    explicit RecordingStudio(std::vector<std::string> sources, int patienceMs = kHangMs)
        : Studio({}, {}, {}, kHangMs, Microphones{std::move(sources), milliseconds(patienceMs)}) {}

    void Record(const std::string& format =
                    "channels 1 samplespersec 44100 bytespersec 88200 "
                    "alignment 2 bitspersample 16") {
        Send("open new type waveaudio alias Rec");
        Send("set Rec " + format);
        Send("record Rec");
    }
    /// False when it ended before.
    bool RecordsUntil(double wanted) {
        bool recording = true;
        return Eventually([&] {
                   const auto state = sound->Recording(u"Rec");
                   recording = state.has_value();
                   return !recording || state->milliseconds >= wanted;
               }) &&
               recording;
    }
    bool Breaks() {
        return Eventually([&] { return !sound->Recording(u"Rec"); });
    }
    /// The bytes of the file, after the recording was stopped.
    std::string Save(const std::string& name = "rec.wav") {
        Send("stop Rec");
        EXPECT_EQ(Send("save Rec \"" + folder.Path(name) + "\""), u"saved");
        Send("close Rec");
        return folder.Content(name);
    }
};

std::vector<double> Samples(const std::string& file) {
    std::vector<double> samples;
    for (size_t i = platform::kWaveHeaderBytes; i + 1 < file.size(); i += 2) {
        int16_t sample = 0;
        std::memcpy(&sample, file.data() + i, sizeof sample);
        samples.push_back(sample / 32768.0);
    }
    return samples;
}

/// Amplitude of that frequency in a stretch that holds whole periods of it.
double Amplitude(const std::vector<double>& samples, double frequency, double rate) {
    double re = 0, im = 0;
    for (size_t i = 0; i < samples.size(); ++i) {
        const double angle = 2 * M_PI * frequency * static_cast<double>(i) / rate;
        re += samples[i] * std::cos(angle);
        im += samples[i] * std::sin(angle);
    }
    return 2 * std::hypot(re, im) / static_cast<double>(samples.size());
}

/// A sound server of its own, whose only microphone hears a tone of 1000 Hz.
class SoundServer {
public:
    SoundServer() {
        const std::string home = folder_.Path("");
        pid_ = fork();
        if (pid_ == 0) {
            setenv("HOME", home.c_str(), 1);
            setenv("XDG_RUNTIME_DIR", home.c_str(), 1);
            setenv("PULSE_RUNTIME_PATH", home.c_str(), 1);
            unsetenv("DBUS_SESSION_BUS_ADDRESS");
            const std::string socket =
                "module-native-protocol-unix auth-anonymous=1 socket=" + folder_.Path("native");
            execlp("pulseaudio", "pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no",
                   "--exit-idle-time=-1", "--disable-shm=yes", "--log-level=error", "-L",
                   "module-null-sink sink_name=room", "-L", "module-sine sink=room frequency=1000",
                   "-L", socket.c_str(), nullptr);
            _exit(127);
        }
    }
    ~SoundServer() { Stop(); }
    SoundServer(const SoundServer&) = delete;
    SoundServer& operator=(const SoundServer&) = delete;

    void Stop() {
        if (pid_ > 0) {
            kill(pid_, SIGKILL);
            waitpid(pid_, nullptr, 0);
            pid_ = 0;
        }
    }
    bool Listens() const {
        return Eventually([this] { return std::filesystem::is_socket(folder_.Path("native")); });
    }
    std::string Microphone() const { return "pulsesrc server=unix:" + folder_.Path("native"); }

private:
    TemporaryFolder folder_;
    pid_t pid_ = 0;
};

TEST(Recording, FromASoundServer) {
    SoundServer server;
    ASSERT_TRUE(server.Listens()) << "is the package pulseaudio there?";
    RecordingStudio studio({server.Microphone()});
    studio.Record(
        "channels 2 samplespersec 44100 bytespersec 176400 alignment 4 "
        "bitspersample 16");
    double loudest = 0;
    ASSERT_TRUE(Eventually([&] {
        const auto state = studio.sound->Recording(u"Rec");
        loudest = state ? std::max(loudest, state->peak) : 2;
        return !state || state->milliseconds >= 1200;
    }));
    EXPECT_GT(loudest, 0.1);
    EXPECT_LE(loudest, 1.0);
    const std::string file = studio.Save("say \"hi\".wav");
    const auto bytes = static_cast<uint32_t>(file.size() - platform::kWaveHeaderBytes);
    EXPECT_EQ(file.substr(0, platform::kWaveHeaderBytes), platform::WaveHeader({2, 44100}, bytes));
    EXPECT_GE(bytes, 1200u * 1764 / 10);

    // Half a second from the middle, the left channel: 22050 samples hold 500 periods of 1000 Hz.
    const std::vector<double> both = Samples(file);
    std::vector<double> left;
    for (size_t i = 0; i < 22050; ++i) {
        left.push_back(both[2 * (8820 + i)]);
        ASSERT_NEAR(both[2 * (8820 + i)], both[2 * (8820 + i) + 1], 0.001) << "both hear it";
    }
    const double tone = Amplitude(left, 1000, 44100);
    EXPECT_GT(tone, 0.1);
    for (const double other : {440.0, 900.0, 1100.0, 2000.0, 5000.0}) {
        EXPECT_LT(Amplitude(left, other, 44100), tone / 20) << other;
    }
}

TEST(Recording, ASoundServerThatGoesAwayLeavesWhatItGave) {
    SoundServer server;
    ASSERT_TRUE(server.Listens());
    RecordingStudio studio({server.Microphone(), kHum});
    studio.Record();
    ASSERT_TRUE(studio.RecordsUntil(300));
    server.Stop();
    EXPECT_TRUE(studio.Breaks()) << "and goes on with no other microphone";
    EXPECT_GE(Samples(studio.Save()).size(), 13230u);
}

TEST(Recording, TheToneAndItsFormat) {
    RecordingStudio studio({kHum});
    studio.Record();
    ASSERT_TRUE(studio.RecordsUntil(1000));
    const std::string file = studio.Save();
    const auto bytes = static_cast<uint32_t>(file.size() - platform::kWaveHeaderBytes);
    EXPECT_EQ(file.substr(0, platform::kWaveHeaderBytes), platform::WaveHeader({1, 44100}, bytes));
    std::vector<double> samples = Samples(file);
    samples.resize(22050);  // 220 periods
    EXPECT_NEAR(Amplitude(samples, 440, 44100), 0.5, 0.01);
}

TEST(Recording, TakesTheFirstMicrophoneThatWorks) {
    RecordingStudio studio({"nosuchelement", "pulsesrc server=unix:/nowhere/native", kHum});
    studio.Record();
    EXPECT_TRUE(studio.RecordsUntil(100));
}

TEST(Recording, WithoutAMicrophoneItEndsAndSavesNothing) {
    RecordingStudio studio({"nosuchelement", "pulsesrc server=unix:/nowhere/native"});
    studio.Write("rec.wav", "old");
    studio.Record();
    EXPECT_TRUE(studio.Breaks());
    studio.Send("stop Rec");
    EXPECT_EQ(studio.Send("save Rec \"" + studio.folder.Path("rec.wav") + "\""), u"");
    EXPECT_EQ(studio.folder.Content("rec.wav"), "old");
}

TEST(Recording, AMicrophoneThatGivesNothingIsNone) {
    RecordingStudio studio({"appsrc is-live=true", kHum}, 200);
    studio.Record();
    EXPECT_TRUE(studio.Breaks());
}

TEST(Recording, NothingIsWrittenBeforeItIsSaved) {
    RecordingStudio studio({kHum});
    studio.Write("rec.wav", "old");
    studio.Record();
    ASSERT_TRUE(studio.RecordsUntil(50));
    EXPECT_EQ(studio.folder.Count(), 1u);
    studio.Send("stop Rec");
    EXPECT_EQ(studio.Send("save Rec \"/nowhere/at/all.wav\""), u"");
    studio.Send("close Rec");
    EXPECT_EQ(studio.folder.Content("rec.wav"), "old");
}

TEST(Recording, AnAliasThatRecordsIsNotOpenedAgain) {
    RecordingStudio studio({kHum});
    studio.Write("a.wav", WaveBytes(Tone(60)));
    studio.Record();
    studio.Open("a.wav", "waveaudio", "Rec");
    studio.Send("play Rec from 1");
    EXPECT_EQ(studio.Mode("Rec"), "");
    EXPECT_TRUE(studio.RecordsUntil(50));
    studio.Send("close Rec");
    EXPECT_FALSE(studio.sound->Recording(u"Rec"));
    studio.Open("a.wav", "waveaudio", "Rec");
    EXPECT_EQ(studio.Mode("Rec"), "stopped");
    studio.Send("open new type waveaudio alias Rec");
    EXPECT_EQ(studio.Mode("Rec"), "stopped") << "a piece stays one";
}

}  // namespace
}  // namespace gst_tests

// What the tests of the real sound and video share: real time, files made here, a sink that
// keeps what it is given.
#pragma once

#include <gst/gst.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "adapters/gstreamer/audio_output.h"
#include "adapters/gstreamer/gst_sound.h"
#include "adapters/posix/posix_files.h"
#include "platform/event_loop.h"
#include "posix/temporary_folder.h"

namespace gst_tests {

/// Real time; a pump runs what was posted, and `onPump`.
class RealLoop : public platform::EventLoop {
public:
    std::function<void()> onPump;

    void PumpEvents() override;
    void Sleep(int milliseconds) override;
    double Timer() override { return 0; }
    platform::DateTime Now() override { return {}; }
    double Milliseconds() override;
    double Rnd() override { return 0; }
    void SetTimer(const void*, int, std::function<void()>) override {}
    void CancelTimer(const void*) override {}
    void RunUntil(const std::function<bool()>&) override {}
};

/// Waits for the condition, generously. False when it never came.
bool Eventually(const std::function<bool()>& condition, int limitMs = 20000);

struct WaveForm {
    int rate = 8000;
    int channels = 1;
    int bits = 16;  // 8, 16, 24, or 32 for floats
};

/// The bytes of a wave file with the samples, given in -1 to 1.
std::string WaveBytes(const std::vector<float>& samples, const WaveForm& form = {});

/// A sine of 440 Hz at half the full amplitude.
std::vector<float> Tone(double seconds, const WaveForm& form = {});

/// A MIDI file: one note of `milliseconds`.
std::string MidiBytes(int milliseconds);

/// Runs a pipeline description to its end; false when a part is missing or it fails.
bool RunPipeline(const std::string& description);

int OpenDescriptors();
int Threads();
int64_t ResidentKiB();

// What the sink "testsink" does and saw. Reset before use.
struct TestSink {
    std::vector<float> samples;  // all it was given, interleaved
    int channels = 0;
    int rate = 0;
    int breakAfterBuffers = -1;  // then it fails; -1: never
    int stateChangeTakesMs = 0;  // to READY
    int bufferTakesMs = 0;
    int opened = 0;
};
/// Registers the sink and clears what it saw.
void ResetTestSink();
/// A copy of what it saw.
TestSink SeenByTestSink();
void SetTestSink(int breakAfterBuffers, int stateChangeTakesMs, int bufferTakesMs = 0);

/// A sound adapter in a folder of its own.
struct Studio {
    explicit Studio(std::vector<std::string> sinks = {}, gst_adapter::OpenDisc openDisc = {},
                    std::string cdDevice = {});

    std::string Write(const std::string& name, const std::string& bytes);
    Text Send(const std::string& command);
    /// `open "…" type TYPE alias ALIAS` of a file in the folder.
    void Open(const std::string& name, const std::string& type, const std::string& alias);
    std::string Mode(const std::string& alias);
    bool Stops(const std::string& alias);

    TemporaryFolder folder;
    posix_adapter::PosixFiles files;
    RealLoop loop;
    std::shared_ptr<gst_adapter::AudioOutput> output;
    std::unique_ptr<gst_adapter::GstSound> sound;
};

}  // namespace gst_tests

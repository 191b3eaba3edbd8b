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
#include "adapters/qt/gate.h"
#include "adapters/qt/qt_loop.h"
#include "posix/temporary_folder.h"

namespace gst_tests {

struct GateOfLoop {
    qt_adapter::Gate gate;
};

/// The desktop's loop, with a hook in its pumps.
class RealLoop : private GateOfLoop, public qt_adapter::QtLoop {
public:
    RealLoop() : QtLoop(gate) {}
    std::function<void()> onPump;
    void PumpEvents() override;
};

/// Guards against hangs only: far above what any machine takes, and above the time after which
/// the program itself gives up.
constexpr int kHangMs = 100000;

/// Waits for the condition. False when it never came.
bool Eventually(const std::function<bool()>& condition);

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
/// Memory that was asked for and not given back, however much of it the allocator keeps besides.
int64_t HeldKiB();

// What the sink "testsink" does and saw. Reset before use.
struct TestSink {
    std::vector<float> samples;  // all it was given, interleaved
    int channels = 0;
    int rate = 0;
    int breakAfterBuffers = -1;  // then it fails; -1: never
    int bufferTakesMs = 0;
    bool holdsOpening = false;  // like a server that hangs
    bool holdsBuffers = false;  // each waits before `samples`
    bool refusesFormat = false;
    int opened = 0;
    int stillOpening = 0;
    int refused = 0;    // formats
    int prerolled = 0;  // buffers it was given before playing
    int arrived = 0;    // buffers, held ones too
};
/// Registers the sink and clears what it saw.
void ResetTestSink();
/// A copy of what it saw.
TestSink SeenByTestSink();
void SetTestSink(int breakAfterBuffers, int bufferTakesMs = 0);
/// From the next format on.
void MakeTestSinkRefuse();
enum class Hold { Nothing, Opening, Buffers };
/// Whatever else was held goes on. ResetTestSink lets all go, too.
void HoldTestSink(Hold what);

/// A sound adapter in a folder of its own.
struct Studio {
    explicit Studio(std::vector<std::string> sinks = {}, gst_adapter::OpenDisc openDisc = {},
                    std::string cdDevice = {}, int searchLimitMs = kHangMs,
                    gst_adapter::Microphones microphones = {});
    /// Waits until nothing of it plays any more.
    ~Studio();

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

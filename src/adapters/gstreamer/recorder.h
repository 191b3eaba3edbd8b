// Records what a microphone gives. Every call but Save returns at once, whatever the sound server
// does; the work is done by the recording's own worker.
#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/sound.h"
#include "platform/wave_format.h"

namespace gst_adapter {

struct Microphones {
    /// Elements in order of choice, as pipeline descriptions.
    std::vector<std::string> sources = {"pulsesrc", "alsasrc"};
    /// One that gives no sample for so long is none.
    std::chrono::milliseconds patience = std::chrono::seconds(5);
};

class Recorder {
public:
    explicit Recorder(Microphones microphones);
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;
    /// What was not saved is gone.
    ~Recorder();

    /// Before Record.
    void SetFormat(const platform::WaveFormat& format);
    /// From the first microphone that works, which may take a moment. Samples go to a temporary
    /// file without a name.
    void Record();
    /// No later sample counts.
    void Stop();
    /// As Sound::Recording. It ends by itself when the microphone breaks or the disk is full; what
    /// came until then can be saved.
    std::optional<platform::RecordingState> State();
    /// Writes a wave file of what was recorded, whole or not at all. False without one sample.
    bool Save(platform::Files& files, TextView path);

private:
    struct Core;
    std::shared_ptr<Core> core_;
};

}  // namespace gst_adapter

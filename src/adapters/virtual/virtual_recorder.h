// A microphone in a silent room, on the virtual clock.
#pragma once

#include <map>
#include <optional>

#include "platform/event_loop.h"
#include "platform/files.h"
#include "platform/sound.h"
#include "platform/sound_command.h"
#include "platform/wave_format.h"

namespace virtual_adapter {

/// Understood are: open new type waveaudio alias A, set A channels … (as ReadWaveFormat), record A,
/// stop A, save A "FILE", close A. What was recorded is silence as long as the clock says.
class VirtualRecorder {
public:
    explicit VirtualRecorder(platform::EventLoop& loop) : loop_(loop) {}
    void Follow(platform::Files& files) { files_ = &files; }

    /// Nullopt for what is not for a recording.
    std::optional<Text> Send(const platform::SoundCommand& command);
    std::optional<platform::RecordingState> State(TextView alias) const;

private:
    struct Recording {
        platform::WaveFormat format;
        double milliseconds = 0;      // before the present stretch
        std::optional<double> since;  // ms of the loop; it records
    };

    double Length(const Recording& recording) const;
    bool Save(const Recording& recording, TextView path);

    platform::EventLoop& loop_;
    platform::Files* files_ = nullptr;
    std::map<Text, Recording> recordings_;  // by alias
};

}  // namespace virtual_adapter

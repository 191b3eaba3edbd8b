#include "adapters/virtual/virtual_recorder.h"

#include <algorithm>
#include <string>

namespace virtual_adapter {

std::optional<Text> VirtualRecorder::Send(const platform::SoundCommand& command) {
    if (command.verb == u"open new") {
        if (command.type == u"waveaudio" && !command.device.empty()) {
            recordings_.try_emplace(command.device);
        }
        return Text();
    }
    const auto found = recordings_.find(command.device);
    if (found == recordings_.end()) {
        return std::nullopt;
    }
    Recording& recording = found->second;
    if (command.verb == u"set") {
        platform::ReadWaveFormat(command.rest, recording.format);
    } else if (command.verb == u"record") {
        recording.since = recording.since.value_or(loop_.Milliseconds());
    } else if (command.verb == u"stop") {
        recording.milliseconds = Length(recording);
        recording.since.reset();
    } else if (command.verb == u"save") {
        return Save(recording, command.file) ? u"saved" : u"";
    } else if (command.verb == u"close") {
        recordings_.erase(found);
    }
    return Text();
}

std::optional<platform::RecordingState> VirtualRecorder::State(TextView alias) const {
    const auto found = recordings_.find(Text(alias));
    if (found == recordings_.end() || !found->second.since) {
        return std::nullopt;
    }
    return platform::RecordingState{Length(found->second), 0};
}

double VirtualRecorder::Length(const Recording& recording) const {
    return recording.milliseconds + (recording.since ? loop_.Milliseconds() - *recording.since : 0);
}

bool VirtualRecorder::Save(const Recording& recording, TextView path) {
    constexpr double kMsPerSecond = 1000;
    if (!files_) {
        return false;
    }
    const auto frame = static_cast<uint32_t>(recording.format.FrameBytes());
    const double frames = Length(recording) * recording.format.samplesPerSecond / kMsPerSecond;
    const uint32_t bytes =
        static_cast<uint32_t>(std::min<double>(frames, platform::kMostWaveBytes / frame)) * frame;
    platform::FileError error;
    return files_->Write(
        path, platform::WaveHeader(recording.format, bytes) + std::string(bytes, '\0'), error);
}

}  // namespace virtual_adapter

// The one way to audio.
#pragma once

#include <optional>

#include "text/text.h"

namespace platform {

/// How far a recording is.
struct RecordingState {
    double milliseconds = 0;  // recorded so far
    double peak = 0;          // amplitude, 0 to 1, of the loudest sample since the last question
};

class Sound {
public:
    virtual ~Sound() = default;
    /// Sends a command string ("open …", "play wav from 1", "status wav mode"); answers with the
    /// status text, empty where a command gives none or fails. Errors are not reported, but for
    /// "save …": it answers "saved" when the file is whole on the disk.
    virtual Text MciSendString(TextView command) = 0;
    /// Nullopt where nothing is recorded under the alias: it was stopped, or there is no microphone
    /// that gives anything.
    virtual std::optional<RecordingState> Recording(TextView) { return std::nullopt; }
    /// Plays a short sound file, or with nullopt ends the one that plays.
    virtual void SndPlaySound(const std::optional<Text>& file, int flags) = 0;
};

}  // namespace platform

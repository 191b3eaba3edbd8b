// The one way to audio.
#pragma once

#include <optional>

#include "text/text.h"

namespace platform {

class Sound {
public:
    virtual ~Sound() = default;
    /// Sends a command string ("open …", "play wav from 1", "status wav mode"); answers with the
    /// status text, empty where a command gives none or fails. Errors are not reported.
    virtual Text MciSendString(TextView command) = 0;
    /// Plays a short sound file, or with nullopt ends the one that plays.
    virtual void SndPlaySound(const std::optional<Text>& file, int flags) = 0;
};

}  // namespace platform

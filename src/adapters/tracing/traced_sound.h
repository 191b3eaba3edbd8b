// Tells the trace what is asked of the real sound device.
#pragma once

#include "platform/sound.h"
#include "platform/trace.h"

namespace tracing {

/// Events "mci" (command, result) and "sndPlaySound" (file or null, flags).
class TracedSound : public platform::Sound {
public:
    TracedSound(platform::Sound& sound, platform::Trace& trace) : sound_(sound), trace_(trace) {}

    Text MciSendString(TextView command) override {
        const Text result = sound_.MciSendString(command);
        trace_.Event("mci", {{"command", Text(command)}, {"result", result}});
        return result;
    }

    std::optional<platform::RecordingState> Recording(TextView alias) override {
        return sound_.Recording(alias);
    }

    void SndPlaySound(const std::optional<Text>& file, int flags) override {
        if (file) {
            trace_.Event("sndPlaySound", {{"file", *file}, {"flags", static_cast<double>(flags)}});
        } else {
            trace_.Event("sndPlaySound",
                         {{"file", nullptr}, {"flags", static_cast<double>(flags)}});
        }
        sound_.SndPlaySound(file, flags);
    }

private:
    platform::Sound& sound_;
    platform::Trace& trace_;
};

}  // namespace tracing

// The alias cdaudio: an audio disc, played by tracks.
#pragma once

#include <memory>
#include <string>

#include "adapters/gstreamer/audio_output.h"
#include "adapters/gstreamer/disc.h"
#include "adapters/gstreamer/player.h"
#include "platform/event_loop.h"
#include "platform/sound_command.h"

namespace gst_adapter {

class CdAudio {
public:
    /// `openDisc` empty: there is never a disc. `device`: see OpenDisc. `loop` is pumped while a
    /// drive takes its time to say what lies in it; that is the only wait.
    CdAudio(OpenDisc openDisc, std::string device, std::shared_ptr<AudioOutput> output,
            platform::EventLoop& loop);

    /// A command whose device is cdaudio; answers its status text, or nothing.
    Text Send(const platform::SoundCommand& command);

private:
    struct Shared;

    void Open();
    void Close();
    bool WaitForDisc();
    void Play(TextView range);
    Text Status(TextView what);
    int Sector() const;

    OpenDisc openDisc_;
    std::string device_;
    std::shared_ptr<AudioOutput> output_;
    platform::EventLoop& loop_;
    std::shared_ptr<Shared> shared_;  // null: closed
    std::unique_ptr<Player> player_;
    int startSector_ = 0;  // where the last Play began; after a stop where that was
    bool byTracks_ = false;
    double volume_ = 1;
};

}  // namespace gst_adapter

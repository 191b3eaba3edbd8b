// One piece of sound from open to close. Every call returns at once, whatever the sound server
// does; the work is done by the piece's own worker.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "adapters/gstreamer/audio_output.h"
#include "adapters/gstreamer/pcm_source.h"

namespace gst_adapter {

struct Media {
    enum class Kind { Wave, Midi, Any };
    Kind kind = Kind::Any;
    std::string nativePath;
    bool loop = false;
    /// Where set, samples come from here and not from a file. Called on the worker.
    std::function<std::unique_ptr<PcmSource>()> open;
    /// Position() is kept up to date; costs some wake-ups while playing.
    bool wantsPosition = false;
};

class Player {
public:
    /// Begins to open the piece, so that playing starts soon after Play.
    Player(Media media, std::shared_ptr<AudioOutput> output);
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;
    /// Stops and frees everything, some time later.
    ~Player();

    /// From that many seconds on, also while playing; from the beginning where the piece cannot
    /// seek.
    void Play(double from = 0);
    void Stop();
    /// Amplitude, 0 to 1. Set before Play, it is that of the first sample.
    void SetVolume(double amplitude);

    /// True from Play until Stop, the end, or a failure.
    bool Playing() const;
    /// Seconds heard since the beginning, as of a tenth of a second ago; 0 without wantsPosition.
    double Position() const;
    /// As Media::wantsPosition, from now on.
    void WantPosition();

private:
    struct Core;
    std::shared_ptr<Core> core_;
};

}  // namespace gst_adapter

// An audio disc as its reader answers for it. The reader is another adapter.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/audio_disc.h"

namespace gst_adapter {

using platform::DiscTrack;
using platform::kSectorsPerSecond;
constexpr int kFramesPerSector = 588;  // stereo, 44100 a second
constexpr int kDiscRate = 44100;

/// Used by one thread at a time.
class Disc {
public:
    virtual ~Disc() = default;
    std::vector<DiscTrack> tracks;
    /// Reads whole sectors, `count` * kFramesPerSector stereo frames. May take as long as a drive
    /// likes. False when it cannot.
    virtual bool Read(int sector, int count, int16_t* frames) = 0;
};

/// Opens what `device` names (a drive, an image's description), with an empty name the system's
/// first drive; null without a readable disc. Called on a worker.
using OpenDisc = std::function<std::unique_ptr<Disc>(const std::string& device)>;

}  // namespace gst_adapter

// Places on an audio disc, as commands to the device cdaudio name them.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "text/text.h"

namespace platform {

constexpr int kSectorsPerSecond = 75;

struct DiscTrack {
    int firstSector = 0;
    int sectors = 0;
    bool audio = true;
};

/// Sectors from `start` up to, and without, `end`.
struct SectorRange {
    int start = 0, end = 0;
};

/// A disc's tracks, in their order. All routines but the constructor want at least one.
class TrackTable {
public:
    TrackTable() = default;
    explicit TrackTable(std::vector<DiscTrack> tracks) : tracks_(std::move(tracks)) {}

    const std::vector<DiscTrack>& Tracks() const { return tracks_; }
    int Count() const { return static_cast<int>(tracks_.size()); }
    /// The first sector after the last track.
    int End() const { return tracks_.back().firstSector + tracks_.back().sectors; }

    /// Number, from 1, of the track that the sector lies in; of the last one beyond the disc.
    int TrackAt(int sector) const;

    /// "tt:mm:ss:ff" counted within the track with `byTracks`, else "mm:ss:ff" on the disc.
    Text PositionText(int sector, bool byTracks) const;

    /// Length of the track, a number from 1: "mm:ss:ff". Empty for one that is not there.
    Text LengthText(int track) const;

    /// What "status cdaudio WHAT" answers of a disc whose head stands on the sector: "number of
    /// tracks", "current track", "position", "length track N"; else the empty text.
    Text Status(TextView what, int sector, bool byTracks) const;

    /// What "play cdaudio from RANGE" plays, RANGE being "PLACE" or "PLACE to PLACE". A place is
    /// "tt[:mm[:ss[:ff]]]" within a track with `byTracks`, else "mm[:ss[:ff]]" on the disc. Nullopt
    /// where one is none of that, lies outside of the disc or before the beginning.
    std::optional<SectorRange> Range(TextView range, bool byTracks) const;

private:
    int SectorOf(TextView place, bool byTracks) const;

    std::vector<DiscTrack> tracks_;
};

}  // namespace platform

#include "platform/audio_disc.h"

#include <algorithm>
#include <cstdio>

#include "platform/sound_command.h"

namespace platform {

int TrackTable::TrackAt(int sector) const {
    int track = 0;
    for (const DiscTrack& each : tracks_) {
        track += each.firstSector <= sector ? 1 : 0;
    }
    return std::max(track, 1);
}

/// -1 where it is none or lies outside of the disc.
int TrackTable::SectorOf(TextView place, bool byTracks) const {
    int parts[4] = {0, 0, 0, 0};
    Text rest = text::Trim(place);
    for (int part = byTracks ? 0 : 1; part < 4; ++part) {
        const size_t colon = rest.find(u':');
        parts[part] = WholeNumber(rest.substr(0, colon), -1);
        if (parts[part] < 0 || parts[part] > 99) {
            return -1;
        }
        if (colon == Text::npos) {
            break;
        }
        rest = rest.substr(colon + 1);
    }
    const int offset = (parts[1] * 60 + parts[2]) * kSectorsPerSecond + parts[3];
    if (!byTracks) {
        return offset;
    }
    if (parts[0] < 1 || parts[0] > Count()) {
        return -1;
    }
    return tracks_[static_cast<size_t>(parts[0] - 1)].firstSector + offset;
}

Text TrackTable::PositionText(int sector, bool byTracks) const {
    const int track = TrackAt(sector);
    if (byTracks) {
        sector -= tracks_[static_cast<size_t>(track - 1)].firstSector;
    }
    sector = std::max(sector, 0);
    const int minutes = sector / kSectorsPerSecond / 60;
    const int seconds = sector / kSectorsPerSecond % 60;
    const int frames = sector % kSectorsPerSecond;
    char words[32];
    if (byTracks) {
        std::snprintf(words, sizeof words, "%02d:%02d:%02d:%02d", track, minutes, seconds, frames);
    } else {
        std::snprintf(words, sizeof words, "%02d:%02d:%02d", minutes, seconds, frames);
    }
    return text::FromUtf8(words);
}

std::optional<SectorRange> TrackTable::Range(TextView range, bool byTracks) const {
    const size_t to = range.find(u" to ");
    const int start = SectorOf(range.substr(0, to), byTracks);
    const int end = to == TextView::npos ? End() : SectorOf(range.substr(to + 4), byTracks);
    if (start < 0 || end < start || start >= End()) {
        return std::nullopt;
    }
    return SectorRange{start, end};
}

}  // namespace platform

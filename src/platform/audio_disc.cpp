#include "platform/audio_disc.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "platform/sound_command.h"

namespace platform {

namespace {

Text TwoDigits(int number) {
    char words[16];
    std::snprintf(words, sizeof words, "%02d", number);
    return text::FromUtf8(words);
}

Text MinutesText(int sectors) {
    const int seconds = sectors / kSectorsPerSecond;
    return TwoDigits(seconds / 60) + u':' + TwoDigits(seconds % 60) + u':' +
           TwoDigits(sectors % kSectorsPerSecond);
}

}  // namespace

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
    return (byTracks ? TwoDigits(track) + u':' : Text()) + MinutesText(std::max(sector, 0));
}

Text TrackTable::LengthText(int track) const {
    if (track < 1 || track > Count()) {
        return {};
    }
    const int sectors = tracks_[static_cast<size_t>(track - 1)].sectors;
    return MinutesText(sectors);
}

Text TrackTable::Status(TextView what, int sector, bool byTracks) const {
    constexpr TextView kLength = u"length track ";
    if (what == u"number of tracks") {
        return text::FromUtf8(std::to_string(Count()));
    }
    if (what == u"current track") {
        return text::FromUtf8(std::to_string(TrackAt(sector)));
    }
    if (what == u"position") {
        return PositionText(sector, byTracks);
    }
    return what.starts_with(kLength) ? LengthText(WholeNumber(what.substr(kLength.size()), 0))
                                     : Text();
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

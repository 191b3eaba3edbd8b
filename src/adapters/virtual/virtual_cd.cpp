#include "adapters/virtual/virtual_cd.h"

#include <algorithm>
#include <cmath>

namespace virtual_adapter {

void VirtualCd::Insert(const std::vector<int>& secondsOfTracks) {
    std::vector<platform::DiscTrack> tracks;
    int first = 0;
    for (const int seconds : secondsOfTracks) {
        tracks.push_back({first, seconds * platform::kSectorsPerSecond});
        first += tracks.back().sectors;
    }
    disc_ = platform::TrackTable(std::move(tracks));
}

Text VirtualCd::Send(const platform::SoundCommand& command) {
    if (command.verb == u"open") {
        open_ = true;
    } else if (!open_) {
        return {};
    } else if (command.verb == u"status") {
        return Status(command.rest);
    } else if (command.verb == u"set") {
        byTracks_ = command.rest == u"time format tmsf";
    } else if (command.verb == u"play" && command.rest.starts_with(u"from ")) {
        Play(TextView(command.rest).substr(5));
    } else if (command.verb == u"stop") {
        Stop();
    } else if (command.verb == u"close") {
        open_ = byTracks_ = false;
        range_ = {};
    }
    return {};
}

void VirtualCd::Stop() {
    range_.start = range_.end = Sector();
}

void VirtualCd::Play(TextView range) {
    const auto asked = disc_.Count() > 0 ? disc_.Range(range, byTracks_) : std::nullopt;
    if (asked) {
        range_ = {asked->start, std::min(asked->end, disc_.End())};
        started_ = loop_.Milliseconds();
    }
}

bool VirtualCd::Playing() const {
    return Sector() < range_.end;
}

int VirtualCd::Sector() const {
    const double played = (loop_.Milliseconds() - started_) * platform::kSectorsPerSecond / 1000;
    return range_.start +
           static_cast<int>(std::min<double>(std::floor(played), range_.end - range_.start));
}

Text VirtualCd::Status(TextView what) const {
    const bool disc = disc_.Count() > 0;
    if (what == u"ready") {
        return disc ? u"true" : u"false";
    }
    if (what == u"mode") {
        return !disc ? u"not ready" : Playing() ? u"playing" : u"stopped";
    }
    return disc ? disc_.Status(what, Sector(), byTracks_) : Text();
}

}  // namespace virtual_adapter

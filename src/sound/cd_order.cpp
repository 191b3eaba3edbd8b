#include "sound/cd_order.h"

#include <algorithm>
#include <cmath>

namespace sound {

namespace {

int OnDisc(const CdSituation& now, int track) {
    return track >= 1 && track <= now.tracks ? track : 0;
}

/// From the beginning to the last track, and then from the beginning again.
int NextTrack(const CdSituation& now) {
    const bool same = now.repeatsTrack || now.moment == CdMoment::Again;
    int track = 0;
    if (now.moment == CdMoment::Resume) {
        // Between the end of a repeated track and the next slide the disc stands on the one after.
        track = now.repeatsTrack && now.last > 0 ? now.last : now.paused;
    } else if (now.moment != CdMoment::Begin && now.last > 0) {
        track = same ? now.last : now.last + 1;
    }
    return OnDisc(now, track) > 0 ? track : now.beginning;
}

CdTurn NextOfProgram(const CdSituation& now) {
    const int count = static_cast<int>(now.program.size());
    int position = now.position;
    for (int tried = 0; tried < count; ++tried) {
        if (position >= count) {
            if (now.stopsAtEnd) {
                return {0, position, !now.inChain};
            }
            position = 0;
        }
        const int track = OnDisc(now, now.program[static_cast<size_t>(position++)]);
        if (track > 0) {
            return {track, position};
        }
    }
    return {0, position};
}

}  // namespace

CdTurn NextCdTurn(const CdSituation& now) {
    const bool again = now.moment == CdMoment::Again && OnDisc(now, now.last) > 0;
    if (now.order == CdOrder::Tracks) {
        return {NextTrack(now), now.position};
    }
    if (again) {
        return {now.last, now.position};
    }
    if (now.order == CdOrder::Program) {
        return NextOfProgram(now);
    }
    const int drawn = static_cast<int>(std::floor(now.tracks * now.draw + 1));
    return {std::clamp(drawn, 1, now.tracks), now.position};
}

}  // namespace sound

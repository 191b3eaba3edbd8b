// A drive whose disc takes its time on the virtual clock and makes no sound.
#pragma once

#include <vector>

#include "platform/audio_disc.h"
#include "platform/event_loop.h"
#include "platform/sound_command.h"

namespace virtual_adapter {

/// The device cdaudio, as the desktop's: open, close, stop, play from PLACE [to PLACE],
/// set time format tmsf, status ready, mode, number of tracks, current track, position,
/// length track N.
class VirtualCd {
public:
    explicit VirtualCd(platform::EventLoop& loop) : loop_(loop) {}

    /// Puts a disc in, by the lengths of its tracks; none: takes it out.
    void Insert(const std::vector<int>& secondsOfTracks);

    /// A command whose device is cdaudio; answers its status text, or nothing.
    Text Send(const platform::SoundCommand& command);

private:
    void Stop();
    void Play(TextView range);
    Text Status(TextView what) const;
    bool Playing() const;
    int Sector() const;

    platform::EventLoop& loop_;
    platform::TrackTable disc_;
    bool open_ = false;
    bool byTracks_ = false;
    platform::SectorRange range_;  // what plays; of a stopped disc its place, without a length
    double started_ = 0;           // ms of the loop
};

}  // namespace virtual_adapter

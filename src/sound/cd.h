// The audio CD of a show: the device cdaudio, one track at a time. CdPlaying is the number of the
// track that was started last, 0 for none.
#pragma once

#include <vector>

#include "model/application.h"

namespace sound {

/// Why StartCd is called.
enum class CdStart {
    ByPerson,    // a START
    InShow,      // a show that runs comes to the CD
    TrackEnded,  // the next track, please
    TrackStuck   // the disc did not move: the same track from its beginning
};

/// Starts the audio CD in mode 2: after a PAUSE the track of the pause, else the one that the
/// order of tracks wants. May wait for the drive, with the loop pumping. Without a disc of two
/// tracks, or where CdTrackSetting is none of them, nothing plays: a START says so in a box, a show
/// that runs does it once, and not in full screen. The end of a program that stops the show sets
/// ShowAbort and CdStopPending.
void StartCd(Application& app, CdStart why = CdStart::ByPerson);

/// Stops the audio CD in mode 2; clears its flags in every mode.
void StopCd(Application& app);
/// Another document is in force now: stops what the one before started, whatever the mode, and
/// forgets its pause and how far its program went.
void LeaveCd(Application& app);

struct DiscContents {
    int tracks = 0;             // 0 also for a disc that cannot be played
    std::vector<Text> lengths;  // of the tracks, "mm:ss:ff", if asked for
};

/// Asks the drive, which is opened for that unless the CD is in use. May wait as StartCd does, with
/// a busy pointer.
DiscContents LookAtDisc(Application& app, bool withLengths);

/// The box about a drive without a disc that can be played.
void SayNoDisc(Application& app);

}  // namespace sound

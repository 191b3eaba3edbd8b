// The sound side of one slide step, in the order the step calls it.
#pragma once

#include "model/application.h"

namespace playback {

/// START is disabled: the show runs forward and neither pause nor stop came in.
bool RunsForward(const Application& app);

/// While it lives the step waits for a sound or a text and takes a PAUSE.
class WaitMark {
public:
    explicit WaitMark(model::ShowState& state) : state_(state) { state_.StepWaiting = 1; }
    ~WaitMark() { state_.StepWaiting = 0; }
    WaitMark(const WaitMark&) = delete;
    WaitMark& operator=(const WaitMark&) = delete;

private:
    model::ShowState& state_;
};

/// Waits until a linked sound has ended. False when the show was paused meanwhile.
bool WaitForLinkedSound(Application& app);

/// Fades the piece that plays before a linked MP3 or a video. False when the show was stopped.
bool FadeBeforeLinkedMedia(Application& app, bool isVideo);

/// Sound that goes with a video.
void StartSoundBesideVideo(Application& app);

/// Starts the next track of the CD where that is the mode and the last one has ended, and the same
/// one again where the disc has not moved since the last slide. The end of a program may set
/// ShowAbort. May wait for the drive, with the loop pumping.
void PollCd(Application& app);

/// Starts the background piece again where it has ended.
void RestartBackgroundSound(Application& app);

/// Second channel and sound of the slide.
void StartLinkedSounds(Application& app);

/// The first step of a show that starts waits for no sound: call this before it.
void SkipFirstSyncWait(Application& app);

/// CD and background sound of a show that starts or goes on; `byPerson`: see sound::CdStart.
void StartShowSound(Application& app, bool byPerson);

}  // namespace playback

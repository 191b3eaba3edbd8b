// The sound side of one slide step, in the order the step calls it.
#pragma once

#include "model/application.h"

namespace playback {

/// START is disabled: the show runs forward and neither pause nor stop came in.
bool RunsForward(const Application& app);

/// A linked WAV plays on top of the background piece (modes 4, 6, 8 with their flags).
bool PlaysSecondChannel(const model::ShowState& state);

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

/// Mode 2: starts the CD again where it has come to its end.
void PollCd(Application& app);

/// Modes 3, 4, 6, 8: starts the background piece again where it has ended.
void RestartBackgroundSound(Application& app);

/// Second channel and sound of the slide.
void StartLinkedSounds(Application& app);

/// The first step of a show that starts waits for no sound: called ahead of it.
void SkipFirstSyncWait(Application& app);

/// CD and background sound of a show that starts or goes on.
void StartShowSound(Application& app);

}  // namespace playback

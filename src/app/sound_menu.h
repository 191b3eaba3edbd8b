// The menus of the sound mode and the order of CD tracks: what they ask and tell.
#pragma once

#include "model/application.h"

namespace app {

/// What precedes a choice of a sound mode: notes, questions, the default sound of linked WAVs, the
/// window of the piece to play. False when a person's "no" leaves the old mode.
bool PrepareSoundMode(Application& app, int mode);

/// What follows it: which linked sounds the window of linked sounds works on.
void FollowSoundMode(Application& app);

/// After another order of tracks was chosen: leaving the programme erases it, choosing it opens its
/// window.
void FollowCdOrder(Application& app, int16_t orderBefore);

}  // namespace app

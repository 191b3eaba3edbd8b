// Volume of what plays.
#pragma once

#include "model/application.h"

namespace sound {

/// Sends the volume (0 to 1000; beyond that the device refuses it) to what the sound mode plays
/// on; modes 0 and 7 have nothing to send it to.
void SendVolume(Application& app, int volume);

/// Lowers the volume by `step` of 1000 every 100 ms until it is below 0, where a list piece or MP3
/// plays, and stops all sound then. False when the show was stopped or the full screen closed
/// meanwhile: what plays on has the volume that macros set.
bool FadeOut(Application& app, int step);

}  // namespace sound

// Volume of what plays, and what the device says of itself.
#pragma once

#include "model/application.h"

namespace sound {

constexpr int kFullVolume = 1000;

/// Sends the volume (0 to 1000; beyond that the device refuses it) to what the sound mode plays
/// on; modes 0 and 7 have nothing to send it to.
void SendVolume(Application& app, int volume);

/// True when the device's answer to the question begins with `answer`.
bool Reports(Application& app, TextView question, TextView answer);

}  // namespace sound

// Listening to a sound before it is taken.
#pragma once

#include "model/application.h"

namespace authoring {

/// Waits, with handlers running, until the alias "wav" plays no more or SoundPreviewStop is 1. May
/// throw ProgramEnd.
void AwaitPreview(Application& app);

/// Frees the alias "wav", that a preview plays on, from what plays.
void MakeRoomForPreview(Application& app);

}  // namespace authoring

// One piece of the sound list, played in its window.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachSoundPreview(model::Application& app);

/// Nothing happens where none plays.
void EndSoundPreview(model::Application& app);

}  // namespace authoring

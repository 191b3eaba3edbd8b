// What the sound list is for: the boxes of Form10.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachSoundBoxes(model::Application& app);

}  // namespace authoring

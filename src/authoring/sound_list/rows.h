// How pieces come into the sound list, leave it and change places.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachSoundRows(model::Application& app);

}  // namespace authoring

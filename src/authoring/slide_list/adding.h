// Slides come into the slide list: by a click on a file, all files of a folder, a drop.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachAdding(Application& app);

}  // namespace authoring

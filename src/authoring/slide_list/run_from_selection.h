// A show that starts at the current row of the slide list.
#pragma once

#include "model/application.h"

namespace authoring {

/// Command21 and Command22.
void AttachRunFromSelection(Application& app);

}  // namespace authoring

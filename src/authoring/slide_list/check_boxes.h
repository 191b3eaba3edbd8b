// The boxes of the slide list: preview, and what a double click does.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachCheckBoxes(Application& app);

/// Check1 to Check5 as the settings have them.
void ShowCheckBoxes(Application& app);

}  // namespace authoring

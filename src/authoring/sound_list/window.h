// Form10, the window in which a person makes the sound list: its life, and what other windows ask
// of it. Each subject has a file of its own beside this one.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachSoundList(model::Application& app);

/// Empties the list, in the window and for the show, and asks nothing. The file stays as it is.
void ClearSoundList(model::Application& app);

}  // namespace authoring

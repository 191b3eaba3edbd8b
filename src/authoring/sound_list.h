// Form10: the list of background pieces. So far what other windows ask of it.
#pragma once

#include "model/application.h"

namespace authoring {

/// Empties the list, in the window and for the show, and asks nothing. The file stays as it is.
void ClearSoundList(Application& app);

}  // namespace authoring

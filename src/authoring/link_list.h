// Form9: the list of show documents that run as a chain. So far what other windows ask of it.
#pragma once

#include "model/application.h"

namespace authoring {

/// Empties the list, in the window and for a run, forgets the link document it came from, and asks
/// nothing. The file stays as it is.
void ClearLinkList(Application& app);

}  // namespace authoring

// Shows come into the list of a chain, leave it and change places.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachLinkRows(Application& app);

/// Empties the list, in the window and for a run, forgets the link document it came from, and asks
/// nothing. The file stays as it is. It can be undone.
void ClearLinkList(Application& app);

}  // namespace authoring

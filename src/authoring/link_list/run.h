// The chain of shows that Form9 starts.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachLinkRun(Application& app);

/// Where the last chain of this window ended that row becomes the selected one.
void ShowWhereChainStood(Application& app);

}  // namespace authoring

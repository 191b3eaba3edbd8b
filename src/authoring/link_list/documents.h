// Link documents of Form9: opening, saving, saving for distribution.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachLinkDocuments(Application& app);

/// Asks for a name and saves the list there; says so where the list is empty.
void SaveLinkDocument(Application& app);

}  // namespace authoring

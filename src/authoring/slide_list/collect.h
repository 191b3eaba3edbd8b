// Everything that a show needs, copied to one folder, from which it plays without the old ones.
#pragma once

#include "model/application.h"

namespace authoring {

/// Asks for the folder, copies, and tells what was copied and what was missing. Nothing of the open
/// document changes.
void CollectShow(model::Application& app);

}  // namespace authoring

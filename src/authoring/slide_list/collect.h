// Everything that a show needs, copied to one folder, from which it plays without the old ones.
#pragma once

#include "model/application.h"

namespace authoring {

/// Asks for the folder, copies, and tells what was copied and what was missing. Nothing of the open
/// document changes. `stopAsked` becomes true meanwhile where a person wants it to end.
void CollectShow(model::Application& app, bool& stopAsked);

}  // namespace authoring

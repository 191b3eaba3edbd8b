// Taking changes of Form3's list back, and moving its rows with the mouse.
#pragma once

#include "model/application.h"

namespace authoring {

/// Undo, Redo and dragged rows.
void AttachHistory(model::Application& app);

}  // namespace authoring

// Rows of Form3 whose files lie elsewhere now: finding the files, and the window that shows what
// would change.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachRelink(model::Application& app);

}  // namespace authoring

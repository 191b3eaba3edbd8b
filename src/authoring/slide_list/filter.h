// The box above Form3's list: only rows whose name or folder holds its text are seen.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachFilter(model::Application& app);

}  // namespace authoring

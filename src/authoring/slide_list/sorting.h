// The orders into which a person brings the rows of Form3.
#pragma once

#include "model/application.h"

namespace authoring {

/// The menu of Form3's list.
void AttachSorting(model::Application& app);

}  // namespace authoring

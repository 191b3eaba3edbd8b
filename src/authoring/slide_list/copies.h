// The button by which a show is collected in one folder.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachCopies(model::Application& app);

}  // namespace authoring

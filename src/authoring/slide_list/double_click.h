// What a double click on a slide does: record, write a text, or show it in a window of its own.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachDoubleClick(Application& app);

}  // namespace authoring

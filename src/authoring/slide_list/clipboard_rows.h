// Cut, copy, paste and select all of Form3's rows.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachClipboardRows(model::Application& app);

}  // namespace authoring

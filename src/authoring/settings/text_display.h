// Form15: whether macro texts are shown, and where their coordinates begin.
#pragma once

#include "model/application.h"

namespace authoring {

/// Attaches the handlers of Form15, which change TextOriginScreen and TextMacroFlag at once.
void AttachTextDisplay(model::Application& app);

}  // namespace authoring

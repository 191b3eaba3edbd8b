// The windows that build and browse a show.
#pragma once

#include "model/application.h"

namespace authoring {

/// Attaches the handlers of every window of this folder that is built.
void AttachWindows(model::Application& app);

}  // namespace authoring

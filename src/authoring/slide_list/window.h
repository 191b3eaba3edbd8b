// Form3, the window in which a person makes the slide list: its life, and what its parts share.
//
// Each subject has a file of its own beside this one with an Attach of its own, which `window.cpp`
// calls.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachSlideList(model::Application& app);

}  // namespace authoring

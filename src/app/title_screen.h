// The title panel, drawn once when the main window first comes up.
#pragma once

#include "model/application.h"

namespace app {

/// Draws the panel into the preview, holds it for two seconds, and prepares the preview for shows.
/// Returns at once when SplashDone is 1. A display that cannot show the panel's colour ends the
/// program after a message.
void ShowTitleScreen(Application& application);

}  // namespace app

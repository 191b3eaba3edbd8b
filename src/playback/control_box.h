// The control box that drives a show in full screen.
#pragma once

#include "model/application.h"

namespace playback {

/// Connects the handlers of Slidescreen2.
void AttachControlBox(Application& app);

struct BoxButtons {
    bool close = false, start = false, pause = false, previous = false, next = false;
};
/// Enables exactly the buttons given.
void SetBoxButtons(Application& app, const BoxButtons& buttons);

/// Puts the box into its corner of the monitor in use.
void PlaceControlBox(Application& app);

}  // namespace playback

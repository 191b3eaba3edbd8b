// The control box that drives a show in full screen.
#pragma once

#include "model/application.h"

namespace playback {

/// Connects the handlers of Slidescreen2.
void AttachControlBox(Application& app);

/// A click or key of a person on the full screen or the box: an effect in progress is cut short.
void NoteInput(Application& app);

/// Shows the box over an open full screen, unless the settings want none.
void BringUpControlBox(Application& app);

/// Puts the box into its corner of the monitor in use.
void PlaceControlBox(Application& app);

}  // namespace playback

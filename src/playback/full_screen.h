// The full-screen window: how it comes up, what it takes from the user, how it goes away.
#pragma once

#include "model/application.h"

namespace playback {

/// Connects the handlers of Slidescreen.
void AttachFullScreen(Application& app);

/// Puts Slidescreen over the monitor that the main window is on and sizes its layers.
void PlaceFullScreen(Application& app);

/// After a monitor came, went or changed: puts the full screen, if it is up, where it belongs now.
/// A picture that stands there alone is fitted to the new size; what macros drew on it goes.
void FollowMonitors(Application& app);

/// Begins a show there, or the chain that LinkRunning announces, whatever stands in the main
/// window.
void StartFullScreen(Application& app);

/// The full-screen button.
void Command4_Click(Application& app);

}  // namespace playback

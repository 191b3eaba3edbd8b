// The transport buttons of the main window, and its timers.
#pragma once

#include "model/application.h"

namespace playback {

/// Connects the handlers of Form1's transport buttons, timers and macro buttons.
void AttachTransport(Application& app);

/// Handlers by name. PAUSE and STOP stand in playback/run.h, the full screen in full_screen.h.
void Command1_Click(Application& app);  // START
void Command5_Click(Application& app);  // previous
void Command7_Click(Application& app);  // next
void Timer1_Tick(Application& app);

}  // namespace playback

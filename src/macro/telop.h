// The scrolling text line, on the main window and in full screen.
#pragma once

#include "model/application.h"

namespace macro {

/// One tick of the timers that scroll: Timer4 of Form1, Timer1 of Slidescreen. Moves the window's
/// label TelopStep pixels to the left; one that has left the window ends (a text that runs once,
/// TelopRunning 1) or comes in again from the right with TelopText.
void ScrollTelopInWindow(Application& app);
void ScrollTelopOnScreen(Application& app);

/// Both lines emptied and hidden, their timers off, TelopRunning 0.
void CancelTelop(Application& app);

}  // namespace macro

// The scrolling text line, on the main window and in full screen.
#pragma once

#include "macro/run.h"

namespace macro {

/// TELOP(t,s,"text"): s pixels every t hundredths of a second on the window of the mode in force;
/// TELOP1 once, others again and again. Without a text every line ends.
Flow StartTelop(Run& run, double);

/// One tick of the timers that scroll: Timer4 of Form1, Timer1 of Slidescreen. Moves the window's
/// label TelopStep pixels to the left; one that has left the window ends (a text that runs once,
/// TelopRunning 1) or comes in again from the right with TelopText.
void ScrollTelopInWindow(Application& app);
void ScrollTelopOnScreen(Application& app);

/// Both lines emptied and hidden, their timers off, TelopRunning 0.
void CancelTelop(Application& app);

}  // namespace macro

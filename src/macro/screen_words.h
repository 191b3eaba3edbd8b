// Words that work on the picture and the screen: filters, keeping and restoring, the pointer, the
// control box, windows and programs.
#pragma once

#include "macro/run.h"

namespace macro {

// Filters work on the slide's picture and add up; what was drawn over it is gone.
Flow FilterBit(Run& run, double);
Flow FilterReverse(Run& run, double);
Flow FilterFlip(Run& run, double);
Flow FilterPencil(Run& run, double);
Flow FilterMetal(Run& run, double);
Flow FilterMosaic(Run& run, double);
Flow FilterGrayScale(Run& run, double);

/// P3 takes what P2 shows; in full screen only.
Flow SavePicture(Run& run, double);
/// In full screen the slide's picture comes back; in the window the canvas simply clears: kept.
Flow ClearScreen(Run& run, double);
/// 0 hides the pointer and removes the control box, 1 shows the pointer.
Flow SetCursor(Run& run, double mode);
/// 0 removes the control box, 1 shows it.
Flow SetControlBox(Run& run, double mode);
/// SHELL="path": starts a program and goes on; a failure is passed over.
Flow StartProgram(Run& run, double);
/// 0 normal, 2 maximised; the main window, outside full screen only.
Flow SetWindowState(Run& run, double mode);

}  // namespace macro

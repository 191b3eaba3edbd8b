// The main window's size: from the last run, or by what the monitor has room for.
#pragma once

#include "model/application.h"

namespace app {

/// Sets Form1's size and WindowState. A size kept from the last run wins, cut to what the monitor
/// has room for; without one, and with `roomy`, the window takes a large share of the monitor;
/// else it stays as declared. A file that makes no sense counts as none.
void RestoreWindowSize(Application& application, bool roomy);

/// Notes the size that the window has when it is neither minimised nor maximised. Called on every
/// resize.
void NoteWindowSize(Application& application);

/// Keeps the size for the next run, in window.dat of the program folder, if a person changed it.
/// Says nothing when it cannot be written.
void KeepWindowSize(Application& application);

}  // namespace app

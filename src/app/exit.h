// The end of the program.
#pragma once

#include "model/application.h"

namespace app {

/// Stops sound, writes the state files, gives up pictures, unloads the windows in their fixed
/// order, and ends the process by platform::ProgramEnd.
[[noreturn]] void ExitProgram(Application& application);

/// Asked to end from outside: as if the main window had been closed, so with ExitProgram. Before
/// the state files were read the program just ends, since it would replace them by its defaults.
/// Returns only where that exit runs already.
void LeaveProgram(Application& application);

/// Writes what ExitProgram writes, and changes nothing: the program may go on. Nothing before the
/// state files were read, and nothing once an exit has written them.
void SaveState(Application& application);

}  // namespace app

// The end of the program.
#pragma once

#include "model/application.h"

namespace app {

/// Stops sound, writes the state files, gives up pictures, unloads the windows in their fixed
/// order, and ends the process by platform::ProgramEnd.
[[noreturn]] void ExitProgram(Application& application);

}  // namespace app

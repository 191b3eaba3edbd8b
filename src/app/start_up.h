// From process start to the first user action, and to the end.
#pragma once

#include "model/application.h"

namespace app {

struct CommandLine {
    Text argument;     // path, without quotes and leading blanks
    int16_t kind = 0;  // 0 none, 1 show document, 2 link document
};

/// Reads the command text. A drive letter makes everything in front of it fall away, an opening
/// quote with it; the text ends at the next quote. Native paths keep their colons and quotes; one
/// in quotes loses them and ends at the second.
CommandLine ReadCommandLine(TextView commandText);

struct StartOptions {
    Text commandText;
    bool title = true;   // show the title screen
    bool roomy = false;  // a first window takes a large share of the monitor
};

/// Runs the program: attaches the handlers, loads the main window, waits for the user.
/// Never returns: ends by platform::ProgramEnd.
[[noreturn]] void RunProgram(Application& application, const StartOptions& options);

}  // namespace app

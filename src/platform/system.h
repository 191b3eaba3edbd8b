// What is asked of the desktop and of the process.
#pragma once

#include "text/text.h"

namespace platform {

class System {
public:
    virtual ~System() = default;
    /// Folder of the program's own files, with a separator at the end; made and filled at first
    /// use.
    virtual Text AppFolder() = 0;
    /// True when another instance of the program was running at start.
    virtual bool PreviousInstance() = 0;
    /// Starts a program in a window of its own and does not wait for it. `commandLine` is an
    /// existing file, or a program and its arguments parted by blanks, with double quotes around
    /// what holds blanks; no shell sees it. The user may be asked first, on behalf of `document`
    /// (the full path of the open show). False when it was refused or could not be started.
    virtual bool Shell(TextView commandLine, TextView document) = 0;
};

}  // namespace platform

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
    /// what holds blanks; no shell sees it. A name without a folder is looked for in the folder of
    /// `document` (the full path of the open show) and then on the system's search path, one with a
    /// relative folder in the document's alone; case does not count where nothing has the exact
    /// name. The user may be asked first, on behalf of the document, who may end the show.
    /// False when it was refused or could not be started; standard error has the reason.
    virtual bool Shell(TextView commandLine, TextView document) = 0;
    /// Whether Shell would find something to start. Asks and starts nothing.
    virtual bool FindsProgram(TextView commandLine, TextView document) = 0;
    /// A show is over: what was allowed or refused until then ends.
    virtual void ForgetShow() = 0;
    /// Opens one of the program's own texts (a full path) in the person's text editor, which goes
    /// on by itself. False where none could be started.
    virtual bool OpenText(TextView path) = 0;
};

}  // namespace platform

// What the windows change among a person's files. Paths are found as by Files. Nothing asks before
// it replaces.
#pragma once

#include "platform/files.h"
#include "platform/progress.h"

namespace platform {

class FileChanges {
public:
    virtual ~FileChanges() = default;

    /// Copies a plain file with its date and permissions to the path `to`, whole or not at all: a
    /// file that stood there stays until the copy is complete. A file is not copied onto itself.
    /// Reports bytes; a stop answers at once, however slow the disk. An empty report: never stops.
    virtual Outcome Copy(TextView from, TextView to, const Report& report, FileError& error) = 0;

    /// The same, and the source is gone afterwards. It fails before any work where the source
    /// could not be removed. Within one disk it takes no time and reports nothing.
    virtual Outcome Move(TextView from, TextView to, const Report& report, FileError& error) = 0;

    /// Puts a file into the trash; where its disk has none it is deleted for good. `kept` gets the
    /// path under which it lies there, empty when it was deleted.
    virtual bool Trash(TextView path, Text& kept, FileError& error) = 0;

    /// Brings back to `path` what Trash kept. Fails where something has that name meanwhile.
    virtual bool Restore(TextView kept, TextView path, FileError& error) = 0;

    /// Makes the folder, and those above it that are missing. One that is there is no failure.
    virtual bool MakeFolder(TextView path, FileError& error) = 0;

    /// Of a folder: files can be made in it. Of anything else: a file can be written under that
    /// name, be there one already or not. Nothing is tried out.
    virtual bool CanWrite(TextView path) = 0;
};

}  // namespace platform

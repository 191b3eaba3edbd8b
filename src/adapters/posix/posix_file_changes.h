// Copying, moving and deleting on this machine.
#pragma once

#include <functional>
#include <string>

#include "adapters/posix/posix_files.h"
#include "platform/file_changes.h"

namespace posix_adapter {

/// Puts something into a trash. 0, or errno, ENOTSUP where its disk has none; `kept` gets where it
/// lies.
using MoveToTrash = std::function<int(const std::string& nativePath, std::string& kept)>;

/// A trash that is a folder, made at first use: a name that is taken gets "-2", "-3"… appended.
MoveToTrash TrashIn(std::string folder);

class PosixFileChanges : public platform::FileChanges {
public:
    /// Finds paths by `files`. `threads` false: everything on the caller's thread, with one report
    /// at its beginning.
    PosixFileChanges(PosixFiles& files, MoveToTrash trash, bool threads = true)
        : files_(files), trash_(std::move(trash)), threads_(threads) {}

    platform::Outcome Copy(TextView from, TextView to, const platform::Report& report,
                           platform::FileError& error) override;
    platform::Outcome Move(TextView from, TextView to, const platform::Report& report,
                           platform::FileError& error) override;
    bool Trash(TextView path, Text& kept, platform::FileError& error) override;
    bool Restore(TextView kept, TextView path, platform::FileError& error) override;
    bool MakeFolder(TextView path, platform::FileError& error) override;
    bool CanWrite(TextView path) override;

private:
    PosixFiles& files_;
    MoveToTrash trash_;
    bool threads_;
};

}  // namespace posix_adapter

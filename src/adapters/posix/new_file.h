// A file in the making: it stands beside its target under a temporary name until it is whole.
#pragma once

#include <sys/stat.h>

#include <string>
#include <string_view>

#include "adapters/posix/descriptor.h"

namespace posix_adapter {

/// Order of use: Begin, write to Fd, Flush or Close, Commit. Gone without a trace when it is
/// destroyed before.
class NewFile {
public:
    NewFile() = default;
    ~NewFile() { GiveUp(); }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    /// Makes the temporary file where `nativePath` (links followed) may be replaced: it is a plain
    /// file that may be written, or nothing at all. 0, or errno.
    ///
    /// It has mode and owner of the file that it replaces from its first byte on, as far as the
    /// disk knows any; else `freshMode` as the process's mask allows.
    int Begin(const std::string& nativePath, mode_t freshMode = 0666);

    int Fd() const { return file_.Get(); }
    int Write(std::string_view content);
    /// Nullptr where nothing stands at the target.
    const struct stat* Old() const { return exists_ ? &old_ : nullptr; }

    /// To the disk. 0, or errno.
    int Flush();
    /// Without waiting for the disk. 0, or errno.
    int Close();
    /// Takes the target's place. 0, or errno: then nothing has changed. `durable` false: what may
    /// be lost with the power needs no Flush, and its name does not wait for the disk either.
    int Commit(bool durable = true);
    void GiveUp();

private:
    std::string target_, temporary_;
    Descriptor file_;
    bool exists_ = false;
    struct stat old_ {};
};

/// With its separator; "./" for a bare name.
std::string FolderOf(const std::string& nativePath);

/// A new or gone name itself reaches the disk with its folder; where that cannot be asked for, the
/// content is safe all the same.
void FlushFolder(const std::string& folder);

/// Renames unless `to` is taken. 0, or errno: EEXIST where it is.
int RenameToFreeName(const std::string& from, const std::string& to);

}  // namespace posix_adapter

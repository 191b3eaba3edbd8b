// Files as the rules see them. Paths stay as they stand in documents; Files finds the real file:
// a path beginning with '/' as it is, a drive letter through the drive table, and where no exact
// match exists by comparing each component without case.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/event_loop.h"
#include "text/text.h"

namespace platform {

/// Why a file operation failed: the platform's own words, Japanese where it has them.
struct FileError {
    Text message;
    /// Of a write: it failed before any content was written, as with a file that cannot be opened.
    bool whileOpening = false;
};

class Files {
public:
    virtual ~Files() = default;

    /// Native path of the existing file or folder that `path` names; nullopt when there is none.
    virtual std::optional<std::string> Find(TextView path) = 0;

    /// Native path under which `path` would be made: folders that exist are found as by Find.
    virtual std::string NativeTarget(TextView path) = 0;

    /// Bare name of an existing plain file as it is spelt on disk; empty when there is none.
    virtual Text Dir(TextView path) = 0;

    /// True for an existing plain file (no folder, fifo or device).
    virtual bool Exists(TextView path) = 0;

    /// Whole content, at most `limit` bytes. False with `error` set when it cannot be read
    /// (missing, a folder, no permission, not a plain file, larger than `limit`).
    virtual bool Read(TextView path, std::string& content, FileError& error,
                      size_t limit = 512u << 20) = 0;

    /// Replaces the file by `content`, whole or not at all: the old content stays whatever fails.
    /// Permissions and symbolic links of an existing file are kept.
    virtual bool Write(TextView path, std::string_view content, FileError& error) = 0;

    /// Renames what `path` names to its present name followed by `mark`, in the same folder; a
    /// number follows where that name is taken: nothing is ever replaced. The new bare name goes to
    /// `name`. False with `error` set where it cannot be renamed.
    virtual bool SetAside(TextView path, TextView mark, Text& name, FileError& error) = 0;

    /// 0 no such file, 1 its first 45 bytes can be read (a shorter file counts), 2 it cannot.
    virtual int Readable(TextView path) = 0;

    /// True for a plain file that begins with these bytes; false also where it cannot be read.
    virtual bool BeginsWith(TextView path, std::string_view bytes) = 0;

    /// Last-write time (local, whole seconds); nullopt when there is no such file.
    virtual std::optional<DateTime> LastWrite(TextView path) = 0;
};

}  // namespace platform

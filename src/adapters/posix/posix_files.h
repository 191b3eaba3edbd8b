// Files of this machine.
#pragma once

#include <string>

#include "adapters/posix/descriptor.h"
#include "adapters/posix/path_finder.h"
#include "platform/files.h"

namespace posix_adapter {

/// Opening never waits: fifos, devices and folders are refused before they are opened.
class PosixFiles : public platform::Files {
public:
    /// `programFolder`: native path of the folder that may hold the drive table "drives.conf",
    /// with lines such as "C: = /mnt/c". Exceeding the process's limit of file size is from now on
    /// an error of the write and no longer the end of the process.
    explicit PosixFiles(std::string programFolder);

    std::optional<std::string> Find(TextView path) override;
    std::string NativeTarget(TextView path) override;
    Text Dir(TextView path) override;
    bool Exists(TextView path) override;
    bool Read(TextView path, std::string& content, platform::FileError& error,
              size_t limit) override;
    bool Write(TextView path, std::string_view content, platform::FileError& error) override;
    bool SetAside(TextView path, TextView mark, Text& name, platform::FileError& error) override;
    int Readable(TextView path) override;
    bool BeginsWith(TextView path, std::string_view bytes) override;
    std::optional<platform::DateTime> LastWrite(TextView path) override;

    /// As PathFinder::Added.
    void Added(const std::string& nativePath, const timespec& before) {
        finder_.Added(nativePath, before);
    }

private:
    PathFinder finder_;
};

/// Last-write time as Files has it; nullopt for one that has no local time.
std::optional<platform::DateTime> WrittenAt(const struct stat& status);

/// Opens a plain file for reading without ever waiting for it. Invalid with errno set otherwise:
/// EISDIR for a folder, ENODEV for a fifo or device.
Descriptor OpenPlainFile(const std::string& nativePath);

/// Replaces the file at `nativePath` (links followed) by `content`, whole or not at all; keeps
/// mode and owner of an existing file. 0, or the errno value of what failed.
int ReplaceFile(const std::string& nativePath, std::string_view content);

/// Renames a file or folder (a link itself) to `nativePath + mark`, or with "-2", "-3"… added
/// where that name is taken; nothing is replaced. The new path goes to `kept`. 0, or errno.
int RenameAside(const std::string& nativePath, const std::string& mark, std::string& kept);

}  // namespace posix_adapter

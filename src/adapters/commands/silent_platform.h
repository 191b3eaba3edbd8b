// Surroundings for the commands that only read and write documents: no window, no sound, no time.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "adapters/posix/iconv_code_page.h"
#include "adapters/posix/posix_files.h"
#include "adapters/posix/posix_folders.h"
#include "platform/platform.h"

namespace commands {

/// Records every box and answers OK or Yes.
class RecordingDialogs : public platform::Dialogs {
public:
    struct Box {
        Text title, text;
        int flags;
    };
    std::vector<Box> messages;

    platform::Answer Message(TextView text, int flags, TextView title) override;
    std::optional<Text> Input(TextView prompt, TextView title, TextView initial) override;
    std::optional<Text> ChooseFile(const FileRequest& request) override;
};

/// Files that can be read; a write is kept from the disk and reported as done, but for `writable`.
class GuardedFiles : public platform::Files {
public:
    explicit GuardedFiles(platform::Files& files) : files_(files) {}

    /// The one path that may be written; empty for none.
    Text writable;

    std::optional<std::string> Find(TextView path) override { return files_.Find(path); }
    std::string NativeTarget(TextView path) override { return files_.NativeTarget(path); }
    Text Dir(TextView path) override { return files_.Dir(path); }
    bool Exists(TextView path) override { return files_.Exists(path); }
    bool Read(TextView path, std::string& content, platform::FileError& error,
              size_t limit) override {
        return files_.Read(path, content, error, limit);
    }
    bool Write(TextView path, std::string_view content, platform::FileError& error) override {
        return writable.empty() || path != writable || files_.Write(path, content, error);
    }
    bool SetAside(TextView, TextView, Text&, platform::FileError&) override { return false; }
    int Readable(TextView path) override { return files_.Readable(path); }
    std::optional<platform::DateTime> LastWrite(TextView path) override {
        return files_.LastWrite(path);
    }

private:
    platform::Files& files_;
};

/// Everything together. Time stands still, pictures cannot be read, sound is silent.
class SilentPlatform {
public:
    /// `programFolder`: native path with '/' at its end; nothing is made there.
    explicit SilentPlatform(std::string programFolder);
    ~SilentPlatform();

    platform::Platform Get();

    RecordingDialogs dialogs;
    posix_adapter::PosixFiles posixFiles;
    GuardedFiles files{posixFiles};
    posix_adapter::IconvCodePage codePage;
    posix_adapter::PosixFolders folders{files};

private:
    struct Devices;
    std::unique_ptr<Devices> devices_;
};

}  // namespace commands

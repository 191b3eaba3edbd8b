// Surroundings for the commands that only read and write documents: no window, no sound, no time.
#pragma once

#include <string>

#include "adapters/posix/iconv_code_page.h"
#include "adapters/posix/posix_files.h"
#include "adapters/posix/posix_folders.h"
#include "adapters/tracing/no_trace.h"
#include "adapters/virtual/silent_devices.h"
#include "adapters/virtual/virtual_desk.h"
#include "adapters/virtual/virtual_dialogs.h"
#include "adapters/virtual/virtual_loop.h"
#include "adapters/virtual/virtual_monitors.h"
#include "adapters/virtual/virtual_sound.h"
#include "adapters/virtual/virtual_video.h"
#include "platform/platform.h"

namespace commands {

/// Files that can be read; a write is kept from the disk and reported as done, but for `writable`.
class GuardedFiles : public posix_adapter::PosixFiles {
public:
    using PosixFiles::PosixFiles;

    /// The one path that may be written; empty for none.
    Text writable;

    bool Write(TextView path, std::string_view content, platform::FileError& error) override {
        return writable.empty() || path != writable || PosixFiles::Write(path, content, error);
    }
    bool SetAside(TextView, TextView, Text&, platform::FileError&) override { return false; }
};

/// Finds programs and starts none.
class NoSystem : public platform::System {
public:
    NoSystem(std::string folder, platform::Files& files)
        : folder_(std::move(folder)), files_(files) {}
    Text AppFolder() override { return text::FromUtf8(folder_); }
    bool PreviousInstance() override { return false; }
    bool Shell(TextView, TextView) override { return false; }
    bool FindsProgram(TextView commandLine, TextView document) override;
    void ForgetShow() override {}
    bool OpenText(TextView) override { return false; }

private:
    std::string folder_;
    platform::Files& files_;
};

/// Everything together. Nothing waits, so that time stands still; pictures cannot be read, no sound
/// and no film can be opened.
struct SilentPlatform {
    /// `programFolder`: native path with '/' at its end; nothing is made there.
    explicit SilentPlatform(const std::string& programFolder)
        : files(programFolder), system(programFolder, files) {}

    platform::Platform Get() {
        return {loop,        files,     dialogs,   monitors,   imaging,    textRenderer,
                sound,       video,     system,    trace,      codePage,   folders,
                fileChanges, clipboard, wallpaper, thumbnails, fileInquiry};
    }

    GuardedFiles files;
    tracing::NoTrace trace;
    virtual_adapter::VirtualLoop loop{platform::DateTime{}};
    virtual_adapter::VirtualDialogs dialogs{trace};
    virtual_adapter::VirtualMonitors monitors;
    virtual_adapter::BlindImaging imaging;
    virtual_adapter::NoText textRenderer;
    virtual_adapter::VirtualSound sound{loop};
    virtual_adapter::VirtualVideo video{trace, loop};
    NoSystem system;
    posix_adapter::IconvCodePage codePage;
    posix_adapter::PosixFolders folders{files};
    virtual_adapter::NoFileChanges fileChanges;
    virtual_adapter::VirtualClipboard clipboard;
    virtual_adapter::VirtualWallpaper wallpaper{files};
    virtual_adapter::NoThumbnails thumbnails;
    virtual_adapter::NoFileInquiry fileInquiry;
};

}  // namespace commands

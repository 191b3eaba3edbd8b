// What the desktop program and the robot's are both made of.
#pragma once

#include <memory>
#include <string>

#include "adapters/imaging/qt_imaging.h"
#include "adapters/posix/iconv_code_page.h"
#include "adapters/posix/posix_files.h"
#include "adapters/posix/posix_folders.h"
#include "adapters/posix/posix_system.h"
#include "adapters/posix/settings_file.h"
#include "adapters/qt/desktop.h"
#include "app/start_up.h"

namespace programs {

/// A loop that is made after the trace that asks it for the time.
struct LateClock {
    platform::EventLoop* loop = nullptr;
    double operator()() const { return loop ? loop->Milliseconds() : 0.0; }
};

/// The trace of the command line, "-" for standard output; one that keeps nothing where `file` is
/// empty. Null, with a line on standard error, where the file cannot be written.
std::unique_ptr<platform::Trace> OpenTrace(const std::string& file,
                                           const std::shared_ptr<LateClock>& clock);

/// A document given relative to the current folder; anything that is no file there stays as typed.
Text CommandText(const std::string& argument);

/// Everything but the loop, the boxes and the devices.
struct Surroundings {
    /// `appFolder`: the program folder; empty for the usual one. `prepare`: pictures are decoded
    /// ahead. `threads` false: what takes long runs on the caller's thread, each time the same way.
    explicit Surroundings(const std::string& appFolder, bool prepare = true, bool threads = true);

    std::string programFolder;
    posix_adapter::IconvCodePage codePage;
    posix_adapter::PosixFiles files;
    imaging::QtImaging imaging;
    posix_adapter::PosixSystem system;
    posix_adapter::PosixFolders folders;
};

/// The views of a program's windows, for as long as the windows live: gone before them however the
/// program is left.
class Views {
public:
    Views(qt_adapter::Desktop& desktop, Application& application) : desktop_(desktop) {
        desktop_.MakeViews(application.windows, &application.platform.video);
    }
    ~Views() { desktop_.UnmakeViews(); }
    Views(const Views&) = delete;
    Views& operator=(const Views&) = delete;

private:
    qt_adapter::Desktop& desktop_;
};

/// Runs the program and answers its exit status. An uncaught exception is reported on standard
/// error, and the state is saved first; the status is then 70. Throws robot::ScriptError alone.
int RunUntilEnd(Application& application, const app::StartOptions& options);

}  // namespace programs

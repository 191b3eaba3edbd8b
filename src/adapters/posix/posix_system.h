// The program's folder, and the other instance of the program.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "adapters/posix/descriptor.h"
#include "adapters/posix/posix_files.h"
#include "adapters/posix/program_start.h"
#include "platform/system.h"

namespace posix_adapter {

/// Native path of the program folder with '/' at its end. `given` (from the command line) if not
/// empty, else $PARAPICO_HOME, else the executable's folder if it holds "portable.txt", else
/// parapico/ below $XDG_DATA_HOME or ~/.local/share. Nothing is made.
std::string ProgramFolder(const std::string& given);

/// $XDG_DATA_HOME, else ~/.local/share, with '/' at its end. Nothing is made.
std::string DataHome();

class PosixSystem : public platform::System {
public:
    /// `programFolder`: as ProgramFolder gives it. `assetsFolder`: native path of the shipped files
    /// (sounds, pictures, help texts); empty or missing: none are copied.
    PosixSystem(std::string programFolder, std::string assetsFolder);

    /// Made at the first call and given every shipped file that it was not given before, so that a
    /// file that the user removed stays away and one that the user changed stays as it is. Where
    /// the disk refuses, the path is answered all the same.
    Text AppFolder() override;

    /// Decided at the first call, by a lock on a file in $XDG_RUNTIME_DIR or else in the program
    /// folder: one instance for each program folder. Never waits; the lock ends with the process.
    bool PreviousInstance() override;

    /// Asks as the permission of program_start.h says; without `ask` nothing is started.
    bool Shell(TextView commandLine, TextView document) override;
    bool FindsProgram(TextView commandLine, TextView document) override;
    void ForgetShow() override { permission_.ForgetShow(); }
    ProgramPermission::Ask ask;
    /// What ends the show when the person says so.
    std::function<void()> endShow;
    /// False while there is no opener.
    bool OpenText(TextView path) override { return textOpener && textOpener(path); }

    /// What shows a text to a person: the desktop's editor, or a note in the robot's trace.
    std::function<bool(TextView path)> textOpener;

private:
    std::string programFolder_;
    std::string assetsFolder_;
    bool prepared_ = false;
    std::optional<bool> previousInstance_;
    Descriptor lock_;
    PosixFiles files_{programFolder_};
    ProgramPermission permission_{programFolder_};
};

}  // namespace posix_adapter

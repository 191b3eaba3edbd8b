// Which program a command line of a show means.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"

namespace posix_adapter {

struct FoundProgram {
    std::string path;  // full, of a plain file that may be run
    std::vector<std::string> arguments;
};

/// Words parted by blanks; double quotes hold blanks together and fall away.
std::vector<std::string> SplitCommandLine(const std::string& commandLine);

/// A command line that is an existing file as a whole is that file, blanks and all; otherwise its
/// first word is the program. Names without a folder are looked for in `documentFolder` (with its
/// separator; empty: nowhere) and then on $PATH, those with a relative folder in `documentFolder`
/// alone: never in the current folder of the process. Where nothing has the exact name, case does
/// not count. Nullopt where there is no plain file that may be run.
std::optional<FoundProgram> FindProgram(platform::Files& files, TextView commandLine,
                                        TextView documentFolder);

}  // namespace posix_adapter

// --check: tells writers of macros what they probably did not mean.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace commands {

/// `arguments`: all after the program's name, the first being "--check": show documents (.kvs,
/// with the macro of every slide) and macro files, "--json", and "--screen WxH", where texts have
/// to stay. Prints a line for each finding, "FILE:LINE:COLUMN: what is wrong → what will
/// happen（what to do）", or one JSON array of objects with file, line, column, wrong, effect,
/// remedy, kind. Exit status 0 nothing found, 1 something found, 2 wrong usage or a file that
/// cannot be read.
int RunCheckCommand(const std::vector<std::string>& arguments, std::ostream& out,
                    std::ostream& err);

}  // namespace commands

// --manual: writes the manual of the macro language.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace commands {

/// `arguments`: all after the program's name, the first being "--manual"; then "--code-page" and
/// the file to write, without which it goes to `out`. UTF-8 with a byte-order mark, or the code
/// page with "--code-page". Exit status 0 written, 1 the file cannot be written, 2 wrong usage.
int RunManualCommand(const std::vector<std::string>& arguments, std::ostream& out,
                     std::ostream& err);

}  // namespace commands

// --help, and what is said of a wrong command line.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace commands {

constexpr int kWrongUsage = 2;  // exit status

/// Every way to call the program, a line each.
const char* Usage();

/// Prints it on `out`. Exit status 0.
int RunHelp(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace commands

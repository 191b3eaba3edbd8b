// The program that a person uses.
#pragma once

#include <string>
#include <vector>

namespace programs {

/// `arguments`: all after the program's name: "--trace FILE", then the document. `argc` and `argv`
/// go to the toolkit, which changes them. Answers the exit status: the program's own, 2 for wrong
/// usage, 70 for a fault of the program.
int RunDesktop(int& argc, char** argv, std::vector<std::string> arguments);

}  // namespace programs

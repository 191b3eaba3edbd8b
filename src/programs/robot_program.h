// The program on the virtual clock, with a scripted person.
#pragma once

#include <string>
#include <vector>

namespace programs {

/// `arguments`: all after the program's name, as robot::ParseRobotArguments reads them. `argc` and
/// `argv` go to the toolkit, which changes them. Answers the exit status: 0 every expectation of
/// the script held, 1 one did not, 2 for wrong usage or a bad script, 70 for a fault of the
/// program.
int RunRobot(int& argc, char** argv, const std::vector<std::string>& arguments);

}  // namespace programs

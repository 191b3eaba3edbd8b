// Chooses what the program is this time: a command, a run of the robot, or the desktop program.

#include <algorithm>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/commands/check_command.h"
#include "adapters/commands/inspect.h"
#include "adapters/commands/manual_command.h"
#include "adapters/commands/usage.h"
#include "programs/desktop_program.h"
#include "programs/robot_program.h"

namespace {

using Arguments = std::vector<std::string>;

struct Command {
    std::string_view word;
    int (*run)(const Arguments& arguments, std::ostream& out, std::ostream& err);
};

/// By their first argument; they need no display.
constexpr Command kCommands[] = {
    {"--help", commands::RunHelp},
    {"-h", commands::RunHelp},
    {"--inspect", commands::RunDocumentCommand},
    {"--resave", commands::RunDocumentCommand},
    {"--check", commands::RunCheckCommand},
    {"--manual", commands::RunManualCommand},
};

}  // namespace

int main(int argc, char** argv) {
    const Arguments arguments(argv + 1, argv + argc);
    for (const Command& command : kCommands) {
        if (!arguments.empty() && arguments[0] == command.word) {
            return command.run(arguments, std::cout, std::cerr);
        }
    }
    const bool robot = std::find(arguments.begin(), arguments.end(), "--robot") != arguments.end();
    return robot ? programs::RunRobot(argc, argv, arguments)
                 : programs::RunDesktop(argc, argv, arguments);
}

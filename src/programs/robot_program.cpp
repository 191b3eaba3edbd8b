#include "programs/robot_program.h"

#include <iostream>

#include "adapters/commands/usage.h"
#include "adapters/robot/options.h"
#include "adapters/robot/robot.h"
#include "adapters/robot/script.h"
#include "adapters/tracing/traced_system.h"
#include "programs/program.h"

namespace programs {

namespace {

int Run(int& argc, char** argv, const robot::RobotOptions& options, LateClock& clock,
        platform::Trace& trace) {
    robot::Robot robot(options, trace);
    clock.loop = &robot.Loop();
    qt_adapter::Desktop desktop(argc, argv, {.offscreen = true, .screens = options.screens});
    Surroundings around(robot.AppFolder(), options.prepare);
    tracing::TracedSystem system(around.system, robot.Trace(), false);
    Application application({robot.Loop(), around.files, robot.Dialogs(), robot.Monitors(),
                             around.imaging, desktop.TextRenderer(), robot.Sound(), robot.Video(),
                             system, robot.Trace(), around.codePage, around.folders,
                             posix_adapter::ReadUserSettings(around.programFolder)});
    const Views views(desktop, application);
    robot.Attach(application, {[&](model::Window& window, const std::string& file) {
                                   return desktop.Shot(window, file);
                               },
                               qt_adapter::Desktop::SamePixels});
    return robot.ExitStatus(
        RunUntilEnd(application, {CommandText(options.document), options.title}));
}

}  // namespace

int RunRobot(int& argc, char** argv, const std::vector<std::string>& arguments) {
    std::string error;
    const auto options = robot::ParseRobotArguments(arguments, error);
    if (!options) {
        std::cerr << "parapico: " << error << "\n" << commands::Usage();
        return commands::kWrongUsage;
    }
    const auto clock = std::make_shared<LateClock>();
    const std::unique_ptr<platform::Trace> trace = OpenTrace(options->trace, clock);
    if (!trace) {
        return commands::kWrongUsage;
    }
    try {
        return Run(argc, argv, *options, *clock, *trace);
    } catch (const robot::ScriptError& scriptError) {
        std::cerr << scriptError.what() << "\n";
        return commands::kWrongUsage;
    }
}

}  // namespace programs

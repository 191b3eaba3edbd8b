#include "programs/robot_program.h"

#include <iostream>

#include "adapters/commands/usage.h"
#include "adapters/imaging/file_inquirer.h"
#include "adapters/imaging/thumbnailer.h"
#include "adapters/posix/posix_file_changes.h"
#include "adapters/robot/options.h"
#include "adapters/robot/robot.h"
#include "adapters/robot/script.h"
#include "adapters/tracing/traced_desk.h"
#include "adapters/tracing/traced_system.h"
#include "adapters/virtual/virtual_desk.h"
#include "programs/program.h"

namespace programs {

namespace {

/// The trash lies in the program folder; no desktop sees the rest.
struct Desk {
    Desk(Surroundings& around, platform::Trace& trace)
        : posixChanges(around.files, posix_adapter::TrashIn(around.programFolder + "trash"), false),
          fileChanges(posixChanges, trace),
          clipboard(virtualClipboard, trace),
          virtualWallpaper(around.files),
          wallpaper(virtualWallpaper, trace),
          thumbnails({.programFolder = around.programFolder}),
          fileInquiry({.programFolder = around.programFolder}) {}

    posix_adapter::PosixFileChanges posixChanges;
    tracing::TracedFileChanges fileChanges;
    virtual_adapter::VirtualClipboard virtualClipboard;
    tracing::TracedClipboard clipboard;
    virtual_adapter::VirtualWallpaper virtualWallpaper;
    tracing::TracedWallpaper wallpaper;
    imaging::Thumbnailer thumbnails;
    imaging::FileInquirer fileInquiry;
};

int Run(int& argc, char** argv, const robot::RobotOptions& options, LateClock& clock,
        platform::Trace& trace) {
    robot::Robot robot(options, trace);
    clock.loop = &robot.Loop();
    qt_adapter::Desktop desktop(argc, argv, {.offscreen = true, .screens = options.screens});
    Surroundings around(robot.AppFolder(), options.prepare, false);
    tracing::TracedSystem system(around.system, robot.Trace(), false);
    Desk desk(around, robot.Trace());
    Application application(
        {robot.Loop(), around.files, robot.Dialogs(), robot.Monitors(), around.imaging,
         desktop.TextRenderer(), robot.Sound(), robot.Video(), system, robot.Trace(),
         around.codePage, around.folders, desk.fileChanges, desk.clipboard, desk.wallpaper,
         desk.thumbnails, desk.fileInquiry, posix_adapter::ReadUserSettings(around.programFolder)});
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

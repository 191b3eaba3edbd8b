// A whole run on the virtual clock: a scripted person, the devices, and the trace.
#pragma once

#include <iostream>
#include <optional>
#include <string>

#include "adapters/robot/devices.h"
#include "adapters/robot/options.h"
#include "adapters/robot/robot_dialogs.h"
#include "adapters/robot/robot_sound.h"
#include "adapters/robot/robot_video.h"
#include "adapters/robot/scripted_user.h"
#include "adapters/robot/virtual_loop.h"
#include "adapters/robot/window_tracer.h"

namespace robot {

/// Order of use: make it, make the Application with its parts, Attach, start the program inside a
/// frame that catches ProgramEnd, and leave the process with ExitStatus. It outlives the use of
/// the application.
class Robot {
public:
    /// Reads the script. Throws ScriptError when the file cannot be read or is no script.
    /// `trace` may ask Loop() for the time as soon as the constructor is done.
    Robot(const RobotOptions& options, platform::Trace& trace, std::ostream& out = std::cout,
          std::ostream& err = std::cerr);
    ~Robot();
    Robot(const Robot&) = delete;
    Robot& operator=(const Robot&) = delete;

    VirtualLoop& Loop() { return loop_; }
    RobotDialogs& Dialogs() { return dialogs_; }
    RobotMonitors& Monitors() { return monitors_; }
    RobotSound& Sound() { return sound_; }
    RobotVideo& Video() { return video_; }

    /// The program folder: the one asked for, or a temporary one that exists as long as the robot.
    const std::string& AppFolder() const { return appFolder_; }

    /// Before the program starts. Throws ScriptError when the script names a window, control,
    /// property, field or entry that the program does not have.
    void Attach(model::Application& application, ShotFunction shot);

    /// 0 every expectation held, 1 one did not or was never reached, 2 the script is at fault.
    int ExitStatus() { return user_.ExitStatus(); }

private:
    VirtualLoop loop_;
    RobotDialogs dialogs_;
    RobotMonitors monitors_;
    RobotSound sound_;
    RobotVideo video_;
    WindowTracer windows_;
    ScriptedUser user_;
    std::string appFolder_;
    bool ownsAppFolder_ = false;
};

}  // namespace robot

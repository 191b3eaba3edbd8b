// A whole run on the virtual clock: a scripted person, the devices, and the trace.
#pragma once

#include <iostream>
#include <optional>
#include <string>

#include "adapters/robot/options.h"
#include "adapters/robot/scripted_user.h"
#include "adapters/robot/trace_record.h"
#include "adapters/tracing/traced_sound.h"
#include "adapters/tracing/window_tracer.h"
#include "adapters/virtual/virtual_dialogs.h"
#include "adapters/virtual/virtual_loop.h"
#include "adapters/virtual/virtual_monitors.h"
#include "adapters/virtual/virtual_sound.h"
#include "adapters/virtual/virtual_video.h"

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

    virtual_adapter::VirtualLoop& Loop() { return loop_; }
    virtual_adapter::VirtualDialogs& Dialogs() { return dialogs_; }
    virtual_adapter::VirtualMonitors& Monitors() { return monitors_; }
    platform::Sound& Sound() { return tracedSound_; }
    virtual_adapter::VirtualVideo& Video() { return video_; }

    /// The program folder: the one asked for, or a temporary one that exists as long as the robot.
    const std::string& AppFolder() const { return appFolder_; }

    /// What the program traces goes here: on to the trace of the run, and to what the
    /// script expects of it.
    platform::Trace& Trace() { return record_; }

    /// Before the program starts. Throws ScriptError when the script names a window, control,
    /// property, field or entry that the program does not have.
    void Attach(model::Application& application, Eyes eyes);

    /// When the run has ended with the program's own status. 0 every expectation held, 1 one did
    /// not or was never reached, 2 the script is at fault; the program's own where the script does
    /// not say which it expects.
    int ExitStatus(int programs) { return user_.ExitStatus(programs); }

private:
    virtual_adapter::VirtualLoop loop_;
    TraceRecord record_;
    virtual_adapter::VirtualDialogs dialogs_;
    virtual_adapter::VirtualMonitors monitors_;
    virtual_adapter::VirtualSound sound_;
    tracing::TracedSound tracedSound_;
    virtual_adapter::VirtualVideo video_;
    tracing::WindowTracer windows_;
    ScriptedUser user_;
    std::string appFolder_;
    bool ownsAppFolder_ = false;
};

}  // namespace robot

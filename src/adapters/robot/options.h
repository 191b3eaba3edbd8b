// The command line of a robot run.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/canvas.h"
#include "platform/event_loop.h"

namespace robot {

struct RobotOptions {
    std::string script;     // path of the script
    std::string trace;      // path, "-" for standard output, empty for none
    std::string appFolder;  // empty: a fresh temporary one
    uint64_t seed = 1;
    platform::DateTime now = platform::FromCalendar({2026, 1, 1, 12, 0, 0});
    std::vector<platform::Rect> screens{{0, 0, 1920, 1080}};  // sizes, from left to right
    std::vector<int> cd;   // seconds of each track of the disc in the drive; empty: no disc
    bool title = false;    // show the title screen
    bool prepare = true;   // decode pictures ahead
    std::string document;  // empty: none
};

/// Reads `--robot SCRIPT [--trace FILE] [--app-folder DIR] [--seed N] [--now "YYYY-MM-DD hh:mm:ss"]
/// [--screen WxH[,WxH…]] [--cd m:ss[,m:ss…]] [--prepare on|off] [--title] [DOCUMENT]` (the
/// program's name left out), in any order; after `--` everything is the document. Nullopt with
/// `error` set for anything else.
std::optional<RobotOptions> ParseRobotArguments(const std::vector<std::string>& arguments,
                                                std::string& error);

}  // namespace robot

// A script played on an application whose handlers the test attaches.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include "adapters/robot/robot.h"
#include "model/windows/main_window.h"
#include "support/fake_platform.h"

namespace robot {

class RobotRun {
public:
    explicit RobotRun(const std::string& script, RobotOptions options = {}) {
        options.script = (std::filesystem::temp_directory_path() /
                          ("robot-test-" + std::to_string(getpid()) + ".robot"))
                             .string();
        std::ofstream(options.script, std::ios::binary) << script;
        const std::string file = options.script;
        struct Removed {
            const std::string& path;
            ~Removed() { std::filesystem::remove(path); }
        } removed{file};
        robot = std::make_unique<Robot>(options, around.trace, out, err);
        scriptFile = file;
        windows.form1.Show();
    }

    /// Plays to the end and answers the exit status.
    int Play() {
        robot->Attach(around.app, {[this](model::Window& window, const std::string& file) {
                                       shots.push_back(window.Name() + " " + file);
                                       return shotsWork;
                                   },
                                   [this](const std::string& kept, const std::string& other) {
                                       compared = {kept, other};
                                       return picturesAreSame;
                                   }});
        try {
            robot->Loop().RunUntil([] { return false; });
        } catch (const platform::ProgramEnd&) {
        }
        return robot->ExitStatus(programStatus);
    }

    virtual_adapter::VirtualLoop& Loop() { return robot->Loop(); }
    /// "expect"-like message of the script's line.
    std::string Told(int line, const std::string& message) const {
        return scriptFile + ":" + std::to_string(line) + ": " + message + "\n";
    }

    std::ostringstream out, err;
    fakes::FakePlatform around;
    model::Windows& windows = around.app.windows;
    std::unique_ptr<Robot> robot;
    std::string scriptFile;
    std::vector<std::string> shots;
    bool shotsWork = true;
    std::vector<std::string> compared;
    bool picturesAreSame = true;
    int programStatus = 0;
};

}  // namespace robot

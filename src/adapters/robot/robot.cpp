#include "adapters/robot/robot.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>
#include <utility>

#include "model/windows/main_window.h"

namespace robot {

namespace {

std::vector<Action> ReadScript(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    if (std::filesystem::is_directory(path) || !file || !(content << file.rdbuf())) {
        // An empty file also sets the stream's failure bit, and is a script without a line.
        std::error_code error;
        if (!std::filesystem::is_regular_file(path, error) ||
            std::filesystem::file_size(path, error) > 0) {
            throw ScriptError(path + ":0: the script cannot be read");
        }
    }
    return ParseScript(content.str(), path);
}

std::string MakeTemporaryFolder() {
    std::string folder = (std::filesystem::temp_directory_path() / "parapico-XXXXXX").string();
    if (!mkdtemp(folder.data())) {
        throw ScriptError("no temporary folder can be made");
    }
    return folder;
}

}  // namespace

Robot::Robot(const RobotOptions& options, platform::Trace& trace, std::ostream& out,
             std::ostream& err)
    : loop_(options.now, options.seed),
      record_(trace, loop_),
      dialogs_(record_),
      monitors_(options.screens),
      sound_(loop_),
      tracedSound_(sound_, record_),
      video_(record_, loop_),
      windows_(record_),
      user_(ReadScript(options.script), options.script,
            {loop_, dialogs_, windows_, record_, out, err}),
      appFolder_(options.appFolder),
      ownsAppFolder_(options.appFolder.empty()) {
    sound_.cd.Insert(options.cd);
    if (ownsAppFolder_) {
        appFolder_ = MakeTemporaryFolder();
    }
}

Robot::~Robot() {
    if (ownsAppFolder_) {
        std::error_code ignored;  // a folder left in the temporary folder does no harm
        std::filesystem::remove_all(appFolder_, ignored);
    }
}

void Robot::Attach(model::Application& application, Eyes eyes) {
    user_.Attach(application, std::move(eyes));
    windows_.Attach(application.windows);
    sound_.Follow(application.platform.files);
    video_.Follow(application.platform.files);
    monitors_.Follow(&application.windows.form1);
    loop_.Follow(&user_);
}

}  // namespace robot

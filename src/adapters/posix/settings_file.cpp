#include "adapters/posix/settings_file.h"

#include <fstream>

namespace posix_adapter {

namespace {

std::string Trimmed(const std::string& text) {
    const char* const blanks = " \t\r";
    const size_t first = text.find_first_not_of(blanks);
    return first == std::string::npos
               ? std::string()
               : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

}  // namespace

std::string UserSetting(const std::string& programFolder, const std::string& key) {
    std::ifstream lines(programFolder + "settings.conf");
    for (std::string line; std::getline(lines, line);) {
        const size_t equals = line.find('=');
        if (equals != std::string::npos && !line.starts_with('#') &&
            Trimmed(line.substr(0, equals)) == key) {
            return Trimmed(line.substr(equals + 1));
        }
    }
    return {};
}

platform::UserSettings ReadUserSettings(const std::string& programFolder) {
    return {.canvasOf1080Lines = UserSetting(programFolder, "macro-scale") == "1080",
            .filmsKeepTheirSize = UserSetting(programFolder, "film") == "own size"};
}

}  // namespace posix_adapter

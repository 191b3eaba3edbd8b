// The user's own settings: settings.conf in the program folder, lines "key = value".
#pragma once

#include <string>

#include "platform/user_settings.h"

namespace posix_adapter {

/// The value without blanks around it; empty where the file or the key is missing. Lines that begin
/// with '#' count for nothing. The folder ends in '/'.
std::string UserSetting(const std::string& programFolder, const std::string& key);

/// The settings that the program's own rules ask for. What is missing or unknown has its default.
platform::UserSettings ReadUserSettings(const std::string& programFolder);

}  // namespace posix_adapter

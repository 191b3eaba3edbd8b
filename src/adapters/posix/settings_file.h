// The user's own settings: settings.conf in the program folder, lines "key = value".
#pragma once

#include <string>

namespace posix_adapter {

/// The value without blanks around it; empty where the file or the key is missing. Lines that begin
/// with '#' count for nothing. The folder ends in '/'.
std::string UserSetting(const std::string& programFolder, const std::string& key);

}  // namespace posix_adapter

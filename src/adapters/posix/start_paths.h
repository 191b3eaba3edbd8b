// Paths that only matter at process start.
#pragma once

#include <string>

namespace posix_adapter {

/// The argument as an absolute native path when a file or folder of that name, or of one that
/// differs by case only, exists from the current folder; otherwise the argument as typed.
std::string AbsoluteIfFile(const std::string& argument);

/// Folder of the shipped files: "../share/parapico/assets" beside the executable of an installed
/// program, else `sourceFolder`.
std::string AssetsFolder(const std::string& sourceFolder);

}  // namespace posix_adapter

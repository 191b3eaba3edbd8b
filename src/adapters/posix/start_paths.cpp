#include "adapters/posix/start_paths.h"

#include <filesystem>

#include "adapters/posix/path_finder.h"

namespace posix_adapter {

namespace fs = std::filesystem;

std::string AbsoluteIfFile(const std::string& argument) {
    if (argument.empty() || argument[0] == '/') {
        return argument;
    }
    std::error_code error;
    if (fs::exists(argument, error)) {
        const fs::path absolute = fs::absolute(argument, error);
        return error ? argument : absolute.lexically_normal().string();
    }
    const bool ownRoot = argument[0] == '\\' || argument.find(':') != std::string::npos;
    const fs::path here = fs::current_path(error);
    if (ownRoot || error) {
        return argument;
    }
    return PathFinder("")
        .Find(text::FromUtf8((here / "").string()) + text::FromUtf8(argument))
        .value_or(argument);
}

std::string AssetsFolder(const std::string& sourceFolder) {
    std::error_code error;
    const fs::path executable = fs::read_symlink("/proc/self/exe", error);
    if (!error) {
        const fs::path installed = executable.parent_path() / "../share/parapico/assets";
        if (fs::is_directory(installed, error)) {
            return installed.lexically_normal().string();
        }
    }
    return sourceFolder;
}

}  // namespace posix_adapter

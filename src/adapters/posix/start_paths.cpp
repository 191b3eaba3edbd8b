#include "adapters/posix/start_paths.h"

#include <filesystem>

namespace posix_adapter {

namespace fs = std::filesystem;

std::string AbsoluteIfFile(const std::string& argument) {
    std::error_code error;
    if (argument.empty() || argument[0] == '/' || !fs::exists(argument, error)) {
        return argument;
    }
    const fs::path absolute = fs::absolute(argument, error);
    return error ? argument : absolute.lexically_normal().string();
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

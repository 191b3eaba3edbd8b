// Saving whole: a temporary file in the target's folder, flushed, takes the target's place.
#include <cerrno>

#include "adapters/posix/new_file.h"
#include "adapters/posix/posix_files.h"

namespace posix_adapter {

int RenameAside(const std::string& nativePath, const std::string& mark, std::string& kept) {
    constexpr int kMostTries = 1000;
    int error = EEXIST;
    for (int number = 1; error == EEXIST && number <= kMostTries; ++number) {
        kept = nativePath + mark + (number > 1 ? "-" + std::to_string(number) : "");
        error = RenameToFreeName(nativePath, kept);
    }
    if (error == 0) {
        FlushFolder(FolderOf(nativePath));
    }
    return error;
}

int ReplaceFile(const std::string& nativePath, std::string_view content) {
    NewFile file;
    int error = file.Begin(nativePath);
    if (error == 0) {
        error = file.Write(content);
    }
    if (error == 0) {
        error = file.Flush();
    }
    return error != 0 ? error : file.Commit();
}

}  // namespace posix_adapter

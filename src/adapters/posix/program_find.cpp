#include "adapters/posix/program_find.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

#include "adapters/posix/path_finder.h"
#include "text/paths.h"

namespace posix_adapter {

namespace {

bool CanRun(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
           access(path.c_str(), X_OK) == 0;
}

bool HasDrive(TextView name) {
    return name.size() > 1 && name[1] == u':';
}

/// Beside the document, or where the name itself says.
std::optional<std::string> InFolders(platform::Files& files, TextView name,
                                     TextView documentFolder) {
    const bool relative = !text::IsNativePath(name) && !HasDrive(name) && !name.starts_with(u'\\');
    if (name.empty() || (relative && documentFolder.empty())) {
        return std::nullopt;
    }
    auto found = files.Find(relative ? Text(documentFolder) + Text(name) : Text(name));
    return found && CanRun(*found) ? found : std::nullopt;
}

/// Full folders only: others would mean the current one.
std::vector<std::string> SearchPath() {
    const char* value = std::getenv("PATH");
    const std::string folders = value != nullptr ? value : "/usr/local/bin:/usr/bin:/bin";
    std::vector<std::string> path;
    for (size_t at = 0; at <= folders.size();) {
        const size_t end = std::min(folders.find(':', at), folders.size());
        if (folders[at] == '/') {
            path.push_back(folders.substr(at, end - at) + "/");
        }
        at = end + 1;
    }
    return path;
}

/// The first name in the folder's own order of letters that differs by case only.
std::optional<std::string> WithoutCase(const std::string& folder, const Text& folded) {
    struct Closer {
        void operator()(DIR* handle) const { closedir(handle); }
    };
    const std::unique_ptr<DIR, Closer> handle(opendir(folder.c_str()));
    std::optional<std::string> found;
    while (const dirent* entry = handle ? readdir(handle.get()) : nullptr) {
        const std::string name = entry->d_name;
        if (FoldCase(text::FromUtf8(name)) == folded && CanRun(folder + name) &&
            (!found || name < *found)) {
            found = name;
        }
    }
    return found ? std::optional(folder + *found) : std::nullopt;
}

std::optional<std::string> OnSearchPath(TextView name) {
    if (name.empty() || text::HoldsSeparator(name) || HasDrive(name) ||
        name.find(u'\0') != TextView::npos) {
        return std::nullopt;
    }
    const std::vector<std::string> path = SearchPath();
    for (const std::string& folder : path) {
        const std::string exact = folder + text::ToUtf8(name);
        if (CanRun(exact)) {
            return exact;
        }
    }
    const Text folded = FoldCase(name);
    for (const std::string& folder : path) {
        if (auto found = WithoutCase(folder, folded)) {
            return found;
        }
    }
    return std::nullopt;
}

}  // namespace

std::vector<std::string> SplitCommandLine(const std::string& commandLine) {
    std::vector<std::string> words;
    bool inWord = false;
    bool quoted = false;
    for (const char c : commandLine) {
        if (c == ' ' && !quoted) {
            inWord = false;
            continue;
        }
        if (!inWord) {
            words.emplace_back();
            inWord = true;
        }
        if (c == '"') {
            quoted = !quoted;
        } else {
            words.back() += c;
        }
    }
    return words;
}

std::optional<FoundProgram> FindProgram(platform::Files& files, TextView commandLine,
                                        TextView documentFolder) {
    if (const auto whole = InFolders(files, text::Trim(commandLine), documentFolder)) {
        return FoundProgram{*whole, {}};
    }
    std::vector<std::string> words = SplitCommandLine(text::ToUtf8(commandLine));
    if (words.empty()) {
        return std::nullopt;
    }
    const Text name = text::FromUtf8(words.front());
    auto path = InFolders(files, name, documentFolder);
    if (!path) {
        path = OnSearchPath(name);
    }
    if (!path) {
        return std::nullopt;
    }
    words.erase(words.begin());
    return FoundProgram{*path, std::move(words)};
}

}  // namespace posix_adapter

#include "adapters/posix/posix_folders.h"

#include <dirent.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <optional>

#include "adapters/posix/path_finder.h"
#include "text/natural_order.h"
#include "text/paths.h"

namespace posix_adapter {

namespace {

using platform::Place;

struct FolderCloser {
    void operator()(DIR* handle) const { closedir(handle); }
};

bool IsNativeFolder(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// What the entry is once links are followed; not asked of the file where the folder says it.
bool IsOfKind(const std::string& folder, const dirent& entry, bool folderWanted) {
    if (entry.d_type == DT_DIR || entry.d_type == DT_REG) {
        return (entry.d_type == DT_DIR) == folderWanted;
    }
    struct stat status {};
    if (stat((folder + "/" + entry.d_name).c_str(), &status) != 0) {
        return false;
    }
    return folderWanted ? S_ISDIR(status.st_mode) : S_ISREG(status.st_mode);
}

bool MatchesOne(TextView name, TextView pattern) {
    size_t at = 0, p = 0;
    size_t star = TextView::npos, starAt = 0;
    while (at < name.size()) {
        if (p < pattern.size() && (pattern[p] == u'?' || pattern[p] == name[at])) {
            ++at;
            ++p;
        } else if (p < pattern.size() && pattern[p] == u'*') {
            star = p++;
            starAt = at;
        } else if (star != TextView::npos) {
            p = star + 1;
            at = ++starAt;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(u'*', p) == TextView::npos;
}

/// Patterns made ready for many names: most are "*.jpg", which is a look at the name's end.
class Patterns {
public:
    explicit Patterns(TextView patterns) : all_(patterns) {
        while (!patterns.empty()) {
            const size_t end = patterns.find(u';');
            const std::string pattern = Lower(text::ToUtf8(text::Trim(patterns.substr(0, end))));
            patterns.remove_prefix(end == TextView::npos ? patterns.size() : end + 1);
            simple_ = simple_ && IsSimple(pattern);
            endings_.push_back(pattern.substr(std::min<size_t>(2, pattern.size())));
        }
        std::sort(endings_.begin(), endings_.end());
    }

    bool Match(const char* name) const {
        if (!simple_) {
            return MatchesPatterns(text::FromUtf8(name), all_);
        }
        const char* dot = std::strrchr(name, '.');
        return dot && std::binary_search(endings_.begin(), endings_.end(), Lower(dot + 1));
    }

private:
    static bool IsSimple(const std::string& pattern) {
        return pattern.size() > 2 && pattern.starts_with("*.") &&
               std::all_of(pattern.begin() + 2, pattern.end(),
                           [](unsigned char c) { return c < 0x80 && std::isalnum(c); });
    }
    static std::string Lower(std::string value) {
        for (char& c : value) {
            c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        }
        return value;
    }

    Text all_;
    bool simple_ = true;
    std::vector<std::string> endings_;  // without their dots
};

/// In their order, each once: names that are no UTF-8 can be the same as text, and only one of
/// them is then found by it.
void SortOnce(std::vector<Text>& names) {
    std::sort(names.begin(), names.end(), text::NaturalLess);
    names.erase(std::unique(names.begin(), names.end()), names.end());
}

/// The first `most` of the names in their order; in any order unless `sorted`.
void KeepFirst(std::vector<Text>& names, size_t most, bool sorted) {
    if (names.size() > most) {
        const auto end = names.begin() + static_cast<std::ptrdiff_t>(most);
        std::nth_element(names.begin(), end, names.end(), text::NaturalLess);
        names.erase(end, names.end());
    }
    if (sorted) {
        SortOnce(names);
    }
}

Text IdentityOf(const struct stat& status) {
    return text::FromUtf8(std::to_string(status.st_dev) + ":" + std::to_string(status.st_ino));
}

std::string HomeFolder() {
    if (const char* home = std::getenv("HOME"); home && home[0] == '/') {
        return home;
    }
    const passwd* user = getpwuid(getuid());
    return user && user->pw_dir && user->pw_dir[0] == '/' ? user->pw_dir : "/";
}

/// A line of the desktop's list of its own folders: XDG_DESKTOP_DIR="$HOME/Desktop".
std::optional<std::string> UserFolder(const std::string& variable) {
    const std::string home = HomeFolder();
    const char* config = std::getenv("XDG_CONFIG_HOME");
    std::ifstream lines((config && config[0] == '/' ? std::string(config) : home + "/.config") +
                        "/user-dirs.dirs");
    const std::string start = variable + "=\"";
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with(start) || line.size() <= start.size() || line.back() != '"') {
            continue;
        }
        std::string path = line.substr(start.size(), line.size() - start.size() - 1);
        constexpr std::string_view kHome = "$HOME";
        if (path.starts_with(kHome)) {
            path = home + path.substr(kHome.size());
        }
        while (path.size() > 1 && path.ends_with('/')) {
            path.pop_back();
        }
        // A folder that the person does without is given as home itself.
        if (path != home && IsNativeFolder(path)) {
            return path;
        }
    }
    return std::nullopt;
}

struct UserFolderRow {
    Place::Kind kind;
    const char* variable;
    TextView label;
};
constexpr UserFolderRow kUserFolders[] = {
    {Place::Desktop, "XDG_DESKTOP_DIR", u"デスクトップ"},
    {Place::Pictures, "XDG_PICTURES_DIR", u"ピクチャ"},
    {Place::Music, "XDG_MUSIC_DIR", u"ミュージック"},
    {Place::Videos, "XDG_VIDEOS_DIR", u"ビデオ"},
};

/// Folders in which the system mounts what is plugged in.
std::vector<std::string> DiskFolders() {
    const passwd* user = getpwuid(getuid());
    std::vector<std::string> folders;
    for (const char* parent : {"/media", "/run/media"}) {
        if (user) {
            folders.push_back(std::string(parent) + "/" + user->pw_name);
        }
    }
    return folders;
}

}  // namespace

bool MatchesPatterns(TextView name, TextView patterns) {
    const Text folded = FoldCase(name);
    while (!patterns.empty()) {
        const size_t end = patterns.find(u';');
        const Text pattern = FoldCase(text::Trim(patterns.substr(0, end)));
        patterns.remove_prefix(end == TextView::npos ? patterns.size() : end + 1);
        if (pattern == u"*.*" || (!pattern.empty() && MatchesOne(folded, pattern))) {
            return true;
        }
    }
    return false;
}

bool PosixFolders::IsFolder(TextView path) {
    const std::optional<std::string> native = files_.Find(path);
    return native && IsNativeFolder(*native);
}

std::vector<Text> PosixFolders::Names(TextView path, bool folders) {
    std::vector<Text> names;
    const std::optional<std::string> native = files_.Find(path);
    const std::unique_ptr<DIR, FolderCloser> handle(native ? opendir(native->c_str()) : nullptr);
    while (const dirent* entry = handle ? readdir(handle.get()) : nullptr) {
        if (entry->d_name[0] != '.' && IsOfKind(*native, *entry, folders)) {
            names.push_back(text::FromUtf8(entry->d_name));
        }
    }
    SortOnce(names);
    return names;
}

std::vector<Text> PosixFolders::Subfolders(TextView path) {
    return Names(path, true);
}

std::vector<Text> PosixFolders::Files(TextView path, TextView patterns) {
    std::vector<Text> names = Names(path, false);
    std::erase_if(names, [&](const Text& name) { return !MatchesPatterns(name, patterns); });
    return names;
}

Text PosixFolders::Identity(TextView path) {
    const std::optional<std::string> native = files_.Find(path);
    struct stat status {};
    if (!native || stat(native->c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) {
        return {};
    }
    return IdentityOf(status);
}

platform::FolderContent PosixFolders::Read(TextView path, TextView patterns, size_t mostFiles,
                                           const std::function<bool()>& goOn) {
    constexpr int kEntriesBetween = 512;
    constexpr size_t kRoomForMore = 1000;  // names are dropped in portions
    platform::FolderContent content;
    const std::optional<std::string> native = files_.Find(path);
    const std::unique_ptr<DIR, FolderCloser> handle(native ? opendir(native->c_str()) : nullptr);
    struct stat status {};
    if (!handle || fstat(dirfd(handle.get()), &status) != 0) {
        return content;
    }
    content.identity = IdentityOf(status);
    const Patterns wanted(patterns);
    int entries = 0;
    while (const dirent* entry = readdir(handle.get())) {
        if (++entries % kEntriesBetween == 0 && !goOn()) {
            break;
        }
        if (entry->d_name[0] == '.') {
            continue;
        }
        if (entry->d_type != DT_REG && IsOfKind(*native, *entry, true)) {
            content.folders.push_back(text::FromUtf8(entry->d_name));
        } else if (wanted.Match(entry->d_name) && IsOfKind(*native, *entry, false)) {
            content.files.push_back(text::FromUtf8(entry->d_name));
            if (content.files.size() > 2 * mostFiles + kRoomForMore) {
                KeepFirst(content.files, mostFiles, false);
            }
        }
    }
    SortOnce(content.folders);
    KeepFirst(content.files, mostFiles, true);
    return content;
}

Text PosixFolders::Home() {
    return text::FromUtf8(HomeFolder());
}

Text PosixFolders::HomeFolders() {
    // An administrator's home may lie in the root, beside those of the users.
    const std::string home = HomeFolder();
    const size_t end = home.find_last_of('/');
    return end == 0 ? Text(u"/home") : text::FromUtf8(home.substr(0, end));
}

std::vector<Place> PosixFolders::Places() {
    std::vector<Place> places{{Place::Home, Home(), u"ホーム"}};
    for (const UserFolderRow& row : kUserFolders) {
        if (const std::optional<std::string> path = UserFolder(row.variable)) {
            places.push_back({row.kind, text::FromUtf8(*path), Text(row.label)});
        }
    }
    for (const std::string& parent : DiskFolders()) {
        const Text path = text::FromUtf8(parent);
        for (const Text& disk : Subfolders(path)) {
            places.push_back({Place::Disk, path + u"/" + disk, disk});
        }
    }
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        const Text drive = Text(1, letter) + u":\\";
        if (IsFolder(drive)) {
            places.push_back({Place::Drive, drive, drive});
        }
    }
    places.push_back({Place::Root, u"/", u"コンピューター"});
    return places;
}

}  // namespace posix_adapter

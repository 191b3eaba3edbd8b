#include "adapters/posix/path_finder.h"

#include <dirent.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <utility>

#include "text/paths.h"

namespace posix_adapter {

using std::chrono::steady_clock;

namespace {

constexpr size_t kMostListings = 256;

/// Letters from `first` to `last` have their other case `distance` further on.
struct CaseRange {
    char16_t first, last, distance;
};
constexpr CaseRange kCaseRanges[] = {
    {u'A', u'Z', 0x20},     {0x00C0, 0x00D6, 0x20}, {0x00D8, 0x00DE, 0x20},
    {0x0391, 0x03A1, 0x20}, {0x03A3, 0x03A9, 0x20}, {0x0400, 0x040F, 0x50},
    {0x0410, 0x042F, 0x20}, {0x2160, 0x216F, 0x10}, {0xFF21, 0xFF3A, 0x20},
};

struct FolderCloser {
    void operator()(DIR* handle) const { closedir(handle); }
};

bool Same(const timespec& a, const timespec& b) {
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

/// True when the folder's time stamp lies so far back that a further change would show as a new
/// one. Time stamps advance in steps: of some milliseconds, or of up to two seconds where a disk
/// keeps whole seconds.
bool Settled(const timespec& changed) {
    constexpr double kFineStep = 0.02, kCoarseStep = 2.1;  // seconds
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    const double age = static_cast<double>(now.tv_sec - changed.tv_sec) +
                       static_cast<double>(now.tv_nsec - changed.tv_nsec) / 1e9;
    return age > (changed.tv_nsec == 0 ? kCoarseStep : kFineStep);
}

std::string Joined(const std::string& folder, const std::string& name) {
    return folder.ends_with('/') ? folder + name : folder + "/" + name;
}

/// By which names are compared. Files of the program hold a blank for a line end within a name.
Text Key(TextView name) {
    Text key = FoldCase(name);
    std::replace_if(
        key.begin(), key.end(), [](char16_t c) { return c == u'\r' || c == u'\n'; }, u' ');
    return key;
}

/// Of names that differ by case only, always the same one answers.
void Prefer(std::string& kept, const std::string& name) {
    if (kept.empty() || name < kept) {
        kept = name;
    }
}

bool Exists(const std::string& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0;
}

std::vector<Text> Split(TextView path, TextView separators) {
    std::vector<Text> parts;
    while (!path.empty()) {
        const size_t end = path.find_first_of(separators);
        if (end != 0) {
            parts.emplace_back(path.substr(0, end));
        }
        path = end == TextView::npos ? TextView() : path.substr(end + 1);
    }
    return parts;
}

bool IsDriveLetter(char16_t c) {
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

std::string WorkingFolder() {
    const std::unique_ptr<char, decltype(&free)> folder(getcwd(nullptr, 0), &free);
    return folder ? folder.get() : "";
}

std::string TrimmedLine(std::string line) {
    const char* blanks = " \t\r\n";
    line.erase(0, line.find_first_not_of(blanks));
    line.erase(line.find_last_not_of(blanks) + 1);
    return line;
}

}  // namespace

Text FoldCase(TextView value) {
    Text result(value);
    for (char16_t& c : result) {
        for (const CaseRange& range : kCaseRanges) {
            if (c >= range.first && c <= range.last) {
                c = static_cast<char16_t>(c + range.distance);
                break;
            }
        }
    }
    return result;
}

PathFinder::PathFinder(std::string programFolder) : programFolder_(std::move(programFolder)) {}

std::optional<std::string> PathFinder::Find(TextView path) {
    if (path.empty() || path.find(u'\0') != TextView::npos) {
        return std::nullopt;
    }
    if (text::IsNativePath(path)) {
        std::string exact = text::ToUtf8(path);
        struct stat status {};
        if (stat(exact.c_str(), &status) == 0) {
            return exact;
        }
    }
    const bool native = text::IsNativePath(path);
    const std::optional<Route> route = MakeRoute(path, !native);
    std::optional<std::string> found = route ? Walk(*route) : std::nullopt;
    // A document's folder may be native and the rest of the path be written with backslashes.
    if (!found && native && path.find(u'\\') != TextView::npos) {
        found = Walk(*MakeRoute(path, true));
    }
    return found;
}

std::string PathFinder::Target(TextView path) {
    if (auto found = Find(path)) {
        return *found;
    }
    const size_t end = path.find(u'\0');
    const bool native = text::IsNativePath(path);
    std::optional<Route> route = MakeRoute(path.substr(0, end), !native);
    if (!route) {
        return {};
    }
    // The backslash belongs to a new file's name unless it leads into a folder that exists.
    if (native && path.find(u'\\') != TextView::npos) {
        const Route deeper = *MakeRoute(path.substr(0, end), true);
        Route parent = deeper;
        parent.parts.resize(std::max<size_t>(parent.parts.size(), 1) - 1);
        if (!deeper.parts.empty() && Walk(parent)) {
            route = deeper;
        }
    }
    std::string target = route->root;
    bool missing = false;
    for (const Text& part : route->parts) {
        std::optional<std::string> name;
        if (!missing) {
            name = NameIn(target, part);
            missing = !name;
        }
        target = Joined(target, name ? *name : text::ToUtf8(part));
    }
    return target;
}

std::optional<PathFinder::Route> PathFinder::MakeRoute(TextView path, bool backslashParts) {
    const TextView separators = backslashParts ? TextView(u"\\/") : TextView(u"/");
    if (path.empty()) {
        return std::nullopt;
    }
    Route route;
    route.folderMeant = separators.find(path.back()) != TextView::npos;
    if (text::IsNativePath(path)) {
        route.root.assign(1, '/');
    } else if (path.size() >= 2 && IsDriveLetter(path[0]) && path[1] == u':') {
        const std::optional<std::string> root = DriveRoot(path[0]);
        if (!root) {
            return std::nullopt;
        }
        route.root = *root;
        path.remove_prefix(2);
    } else if (path.front() == u'\\') {
        return std::nullopt;  // a share of another machine, or the root of an unknown drive
    } else {
        route.root = WorkingFolder();
    }
    route.parts = Split(path, separators);
    return route.root.empty() ? std::nullopt : std::optional(route);
}

std::optional<std::string> PathFinder::Walk(const Route& route) {
    std::string exact = route.root;
    for (const Text& part : route.parts) {
        exact = Joined(exact, text::ToUtf8(part));
    }
    std::string place = Exists(exact) ? exact : route.root;
    for (const Text& part : place == exact ? std::vector<Text>() : route.parts) {
        const std::optional<std::string> name = NameIn(place, part);
        if (!name) {
            return std::nullopt;
        }
        place = Joined(place, *name);
    }
    struct stat status {};
    if (stat(place.c_str(), &status) != 0 || (route.folderMeant && !S_ISDIR(status.st_mode))) {
        return std::nullopt;
    }
    return place;
}

std::optional<std::string> PathFinder::NameIn(const std::string& folder, const Text& part) {
    const std::string exact = text::ToUtf8(part);
    if (Exists(Joined(folder, exact))) {
        return exact;
    }
    const Text folded = Key(part);
    const Listing* listing = List(folder, folded);
    if (listing == nullptr) {
        return std::nullopt;
    }
    const auto found = listing->names.find(folded);
    return found == listing->names.end() ? std::nullopt : std::optional(found->second);
}

const PathFinder::Listing* PathFinder::List(const std::string& folder, const Text& wanted) {
    struct stat status {};
    if (stat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) {
        return nullptr;
    }
    const auto known = listings_.find(folder);
    if (known != listings_.end() && Same(known->second.changed, status.st_mtim)) {
        const auto name = known->second.names.find(wanted);
        const bool holds =
            name != known->second.names.end() && Exists(Joined(folder, name->second));
        if (holds || known->second.settled || IsRecent(known->second)) {
            return &known->second;
        }
    }
    const std::unique_ptr<DIR, FolderCloser> handle(opendir(folder.c_str()));
    if (!handle) {
        return nullptr;
    }
    if (listings_.size() >= kMostListings) {
        listings_.clear();
    }
    Listing fresh;
    fresh.changed = status.st_mtim;
    fresh.settled = Settled(status.st_mtim);
    fresh.rightAt = steady_clock::now();
    while (const dirent* entry = readdir(handle.get())) {
        Prefer(fresh.names[Key(text::FromUtf8(entry->d_name))], entry->d_name);
    }
    Listing& stored = listings_[folder];
    stored = std::move(fresh);
    return &stored;
}

bool PathFinder::IsRecent(const Listing& listing) {
    return listing.grown && steady_clock::now() - listing.rightAt < std::chrono::seconds(1);
}

void PathFinder::Added(const std::string& nativePath, const timespec& before) {
    const size_t end = nativePath.rfind('/');
    const std::string folder = end == 0 ? "/" : nativePath.substr(0, end);
    const auto known = listings_.find(folder);
    struct stat status {};
    if (known == listings_.end() || !Same(known->second.changed, before) ||
        stat(folder.c_str(), &status) != 0) {
        return;
    }
    Listing& listing = known->second;
    const std::string name = nativePath.substr(end + 1);
    Prefer(listing.names[Key(text::FromUtf8(name))], name);
    listing.changed = status.st_mtim;
    if (listing.settled) {
        listing.rightAt = steady_clock::now();
    }
    listing.settled = false;
    listing.grown = true;
}

std::optional<std::string> PathFinder::DriveRoot(char16_t letter) {
    ReadDrives();
    const auto found = drives_.find(text::Upper(TextView(&letter, 1)).front());
    return found == drives_.end() ? std::nullopt : std::optional(found->second);
}

void PathFinder::ReadDrives() {
    const std::string file = Joined(programFolder_, "drives.conf");
    struct stat status {};
    if (stat(file.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
        drives_.clear();
        drivesChanged_ = {};
        return;
    }
    if (Same(drivesChanged_, status.st_mtim)) {
        return;
    }
    drives_.clear();
    std::ifstream lines(file);
    for (std::string line; std::getline(lines, line);) {
        line = TrimmedLine(line);
        const size_t equals = line.find('=');
        const std::string drive = TrimmedLine(line.substr(0, equals));
        if (equals == std::string::npos || drive.size() != 2 || drive[1] != ':' ||
            !IsDriveLetter(static_cast<unsigned char>(drive[0]))) {
            continue;
        }
        std::string root = TrimmedLine(line.substr(equals + 1));
        while (root.size() > 1 && root.ends_with('/')) {
            root.pop_back();
        }
        if (root.starts_with('/')) {
            const Text letter = text::Upper(text::FromUtf8(drive.substr(0, 1)));
            drives_[letter.front()] = root;
        }
    }
    drivesChanged_ = Settled(status.st_mtim) ? status.st_mtim : timespec{};
}

}  // namespace posix_adapter

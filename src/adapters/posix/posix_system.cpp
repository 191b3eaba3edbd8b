#include "adapters/posix/posix_system.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <utility>

#include "text/paths.h"

namespace posix_adapter {

namespace fs = std::filesystem;

namespace {

/// List of the shipped files that the program folder was given, one relative path a line.
constexpr const char* kGivenList = ".shipped";

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

std::string HomeFolder() {
    const std::string home = Environment("HOME");
    if (home.starts_with('/')) {
        return home;
    }
    const passwd* entry = getpwuid(getuid());
    return entry != nullptr && entry->pw_dir != nullptr ? entry->pw_dir : "/";
}

std::string WithSlash(const fs::path& folder) {
    std::error_code error;
    const fs::path absolute = fs::absolute(folder, error).lexically_normal();
    const std::string path = error ? folder.string() : absolute.string();
    return path.ends_with('/') ? path : path + "/";
}

/// False for a list that is there and cannot be read.
bool ReadGiven(const fs::path& list, std::set<std::string>& given) {
    std::error_code error;
    std::ifstream lines(list);
    for (std::string line; std::getline(lines, line);) {
        given.insert(line);
    }
    return lines.eof() || !fs::exists(list, error);
}

/// Copies by way of a temporary name, so that no half file stays. False where the disk refuses.
bool CopyShipped(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::create_directories(to.parent_path(), error);
    if (fs::exists(fs::symlink_status(to, error))) {
        return true;
    }
    std::ifstream source(from, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(source),
                              std::istreambuf_iterator<char>()};
    return !source.bad() && ReplaceFile(to.string(), content) == 0;
}

void GiveShippedFiles(const fs::path& assets, const fs::path& folder) {
    std::set<std::string> given;
    if (!ReadGiven(folder / kGivenList, given)) {
        return;  // what was removed on purpose would come back
    }
    const size_t before = given.size();
    std::error_code error;
    fs::recursive_directory_iterator entry(assets, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        std::error_code ignored;
        const std::string name = entry->path().lexically_relative(assets).string();
        if (!entry->is_regular_file(ignored) || given.contains(name)) {
            continue;
        }
        if (CopyShipped(entry->path(), folder / name)) {
            given.insert(name);
        }
    }
    if (given.size() != before) {
        std::string list;
        for (const std::string& name : given) {
            list += name + "\n";
        }
        ReplaceFile((folder / kGivenList).string(), list);
    }
}

/// Short name that differs for every program folder (FNV-1a).
std::string LockName(const std::string& folder) {
    uint64_t hash = 0xcbf29ce484222325u;
    for (const char c : folder) {
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3u;
    }
    char name[48];
    std::snprintf(name, sizeof name, "parapico-%016llx.lock",
                  static_cast<unsigned long long>(hash));
    return name;
}

Descriptor OpenLock(const std::string& path) {
    const int flags = O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    return Descriptor(open(path.c_str(), flags, 0600));
}

}  // namespace

std::string ProgramFolder(const std::string& given) {
    if (!given.empty()) {
        return WithSlash(given);
    }
    const std::string home = Environment("PARAPICO_HOME");
    if (!home.empty()) {
        return WithSlash(home);
    }
    std::error_code error;
    const fs::path executable = fs::read_symlink("/proc/self/exe", error);
    if (!error && fs::is_regular_file(executable.parent_path() / "portable.txt", error)) {
        return WithSlash(executable.parent_path());
    }
    return DataHome() + "parapico/";
}

std::string DataHome() {
    // A relative $XDG_DATA_HOME does not count.
    const std::string data = Environment("XDG_DATA_HOME");
    return WithSlash(data.starts_with('/') ? fs::path(data)
                                           : fs::path(HomeFolder()) / ".local/share");
}

PosixSystem::PosixSystem(std::string programFolder, std::string assetsFolder)
    : programFolder_(WithSlash(programFolder)), assetsFolder_(std::move(assetsFolder)) {}

Text PosixSystem::AppFolder() {
    if (!std::exchange(prepared_, true)) {
        std::error_code error;
        fs::create_directories(programFolder_, error);
        if (!assetsFolder_.empty()) {
            GiveShippedFiles(assetsFolder_, programFolder_);
        }
    }
    return text::FromUtf8(programFolder_);
}

bool PosixSystem::PreviousInstance() {
    if (previousInstance_) {
        return *previousInstance_;
    }
    const std::string runtime = Environment("XDG_RUNTIME_DIR");
    if (runtime.starts_with('/')) {
        lock_ = OpenLock(WithSlash(runtime) + LockName(programFolder_));
    }
    if (!lock_.Valid()) {
        AppFolder();
        lock_ = OpenLock(programFolder_ + ".parapico.lock");
    }
    const bool held =
        lock_.Valid() && flock(lock_.Get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (held) {
        lock_.Close();
    }
    previousInstance_ = held;
    return held;
}

bool PosixSystem::Shell(TextView commandLine, TextView document) {
    AppFolder();
    const auto tell = [&](const char* what) {
        std::cerr << "parapico: " << text::ToUtf8(commandLine) << ": " << what << "\n";
        return false;
    };
    const auto program = FindProgram(files_, commandLine, text::FolderPart(document));
    if (!program) {
        return tell("no such program");
    }
    switch (permission_.Allows(*program, document, ask)) {
        case platform::ProgramAnswer::Yes:
            return StartProgram(*program) || tell("cannot be started");
        case platform::ProgramAnswer::EndShow:
            tell("not allowed");
            if (endShow) {
                endShow();
            }
            return false;
        default:
            return tell("not allowed");
    }
}

bool PosixSystem::FindsProgram(TextView commandLine, TextView document) {
    return FindProgram(files_, commandLine, text::FolderPart(document)).has_value();
}

}  // namespace posix_adapter

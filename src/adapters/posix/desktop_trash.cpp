#include "adapters/posix/desktop_trash.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <filesystem>

#include "adapters/posix/descriptor.h"
#include "adapters/posix/new_file.h"
#include "adapters/posix/posix_system.h"

namespace posix_adapter {

namespace {

/// A path in a note: bytes but letters, digits and a few marks as %XX.
std::string Escaped(const std::string& path) {
    constexpr std::string_view kPlain = "-_.~/";
    constexpr std::string_view kHex = "0123456789ABCDEF";
    std::string escaped;
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        if (letter || (c >= '0' && c <= '9') || kPlain.find(c) != std::string_view::npos) {
            escaped += c;
        } else {
            escaped += {'%', kHex[byte / 16], kHex[byte % 16]};
        }
    }
    return escaped;
}

std::string Now() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    char text[32] = "";
    if (localtime_r(&now, &local)) {
        std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &local);
    }
    return text;
}

/// 0 where the folder is there, of nobody else, and can be used; else errno.
int MakeOwnFolder(const std::string& path) {
    if (mkdir(path.c_str(), 0700) != 0 && errno != EEXIST) {
        return errno;
    }
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0) {
        return errno;
    }
    if (!S_ISDIR(status.st_mode)) {
        return ENOTDIR;
    }
    return faccessat(AT_FDCWD, path.c_str(), W_OK | X_OK, AT_EACCESS) == 0 ? 0 : errno;
}

/// "photo.jpg", "photo-2.jpg", "photo-3.jpg".
std::string NumberedName(const std::string& name, int number) {
    if (number == 1) {
        return name;
    }
    const std::filesystem::path path(name);
    return path.stem().string() + "-" + std::to_string(number) + path.extension().string();
}

/// The note goes first: nothing lies in the trash without one. 0, or errno.
int WriteNote(const std::string& note, const std::string& origin) {
    const Descriptor file(open(note.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!file.Valid()) {
        return errno;
    }
    const std::string content =
        "[Trash Info]\nPath=" + Escaped(origin) + "\nDeletionDate=" + Now() + "\n";
    const ssize_t written = write(file.Get(), content.data(), content.size());
    if (written == static_cast<ssize_t>(content.size())) {
        return 0;
    }
    const int error = written < 0 ? errno : ENOSPC;
    unlink(note.c_str());
    return error;
}

/// `origin` stands in the note.
int PutInto(const std::string& trash, const std::string& path, const std::string& origin,
            std::string& kept) {
    for (const char* part : {"", "/files", "/info"}) {
        if (const int error = MakeOwnFolder(trash + part)) {
            return error;
        }
    }
    const std::string name = std::filesystem::path(path).filename().string();
    constexpr int kMostTries = 10000;
    int error = EEXIST;
    for (int number = 1; error == EEXIST && number <= kMostTries; ++number) {
        const std::string own = NumberedName(name, number);
        const std::string note = trash + "/info/" + own + ".trashinfo";
        kept = trash + "/files/" + own;
        error = WriteNote(note, origin);
        if (error == 0) {
            error = RenameToFreeName(path, kept);
            if (error != 0) {
                unlink(note.c_str());
            }
        }
    }
    return error;
}

/// The folder at which the path's disk begins.
std::string TopOf(const std::filesystem::path& path, dev_t disk) {
    std::filesystem::path top = path.parent_path();
    struct stat status {};
    while (top.has_relative_path() && stat(top.parent_path().c_str(), &status) == 0 &&
           status.st_dev == disk) {
        top = top.parent_path();
    }
    return top.string();
}

/// The trash of a disk that the home folder is not on; empty where there can be none.
std::string TrashOfDisk(const std::string& top) {
    const std::string user = std::to_string(geteuid());
    const std::string within = top + (top.ends_with('/') ? "" : "/");
    const std::string shared = within + ".Trash";
    struct stat status {};
    if (lstat(shared.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
        (status.st_mode & S_ISVTX) != 0 && MakeOwnFolder(shared + "/" + user) == 0) {
        return shared + "/" + user;
    }
    const std::string own = within + ".Trash-" + user;
    const bool usable =
        MakeOwnFolder(own) == 0 && stat(own.c_str(), &status) == 0 && status.st_uid == geteuid();
    return usable ? own : "";
}

}  // namespace

int MoveToDesktopTrash(const std::string& nativePath, std::string& kept) {
    std::error_code failed;
    const std::filesystem::path path = std::filesystem::absolute(nativePath, failed);
    struct stat file {
    }, home{};
    if (failed || lstat(path.c_str(), &file) != 0) {
        return failed ? failed.value() : errno;
    }
    if (S_ISDIR(file.st_mode)) {
        return EISDIR;
    }
    const std::string data = DataHome();
    std::filesystem::create_directories(data, failed);
    if (!data.empty() && stat(data.c_str(), &home) == 0 && home.st_dev == file.st_dev) {
        return PutInto(data + "Trash", path.string(), path.string(), kept);
    }
    const std::string top = TopOf(path, file.st_dev);
    const std::string trash = TrashOfDisk(top);
    if (trash.empty()) {
        return ENOTSUP;
    }
    const int error =
        PutInto(trash, path.string(), std::filesystem::relative(path, top, failed).string(), kept);
    return error == EXDEV ? ENOTSUP : error;
}

}  // namespace posix_adapter

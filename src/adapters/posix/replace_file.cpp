// Saving whole: a temporary file in the target's folder, flushed, takes the target's place.
#include <fcntl.h>
#include <sys/stat.h>

#include <atomic>
#include <cerrno>
#include <cstdio>

#include "adapters/posix/descriptor.h"
#include "adapters/posix/posix_files.h"

namespace posix_adapter {

namespace {

std::string FolderOf(const std::string& path) {
    const size_t last = path.rfind('/');
    return last == std::string::npos ? "./" : path.substr(0, last + 1);
}

/// Follows the links at the path's last part, also to a place where nothing is yet. 0 or errno.
int FollowLinks(std::string& path) {
    constexpr int kMostLinks = 40;
    constexpr size_t kLongestLink = 4096;
    for (int i = 0; i < kMostLinks; ++i) {
        struct stat status {};
        if (lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) {
            return 0;
        }
        std::string goal(kLongestLink, '\0');
        const ssize_t size = readlink(path.c_str(), goal.data(), goal.size());
        if (size < 0) {
            return errno;
        }
        goal.resize(static_cast<size_t>(size));
        path = goal.starts_with('/') ? goal : FolderOf(path) + goal;
    }
    return ELOOP;
}

/// New file beside the target; readable as the process's mask allows. Its name is put in `path`.
Descriptor MakeTemporary(const std::string& folder, std::string& path) {
    static std::atomic<unsigned> counter{0};
    constexpr int kMostTries = 1000;
    for (int i = 0; i < kMostTries; ++i) {
        path = folder + ".parapico-" + std::to_string(getpid()) + "-" + std::to_string(counter++) +
               ".tmp";
        Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        if (file.Valid() || errno != EEXIST) {
            return file;
        }
    }
    return Descriptor();
}

int WriteAll(int fd, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = write(fd, content.data(), content.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written < 0) {
            return errno;
        }
        content.remove_prefix(static_cast<size_t>(written));
    }
    return 0;
}

/// Mode and owner of the file that is replaced. A disk that knows none refuses: nothing to keep.
void KeepPermissions(int fd, const struct stat& old) {
    struct stat fresh {};
    if (fstat(fd, &fresh) != 0) {
        return;
    }
    mode_t mode = old.st_mode & 07777;
    const bool owned = fresh.st_uid == old.st_uid && fresh.st_gid == old.st_gid;
    if (!owned && fchown(fd, old.st_uid, old.st_gid) != 0 &&
        fchown(fd, static_cast<uid_t>(-1), old.st_gid) != 0) {
        mode &= 0777;  // a special bit would now speak for another owner
    }
    if (fchmod(fd, mode) != 0) {
        return;
    }
}

/// 0 where the target may be replaced: a plain file that may be written, or nothing at all.
int CheckTarget(const std::string& target, bool& exists, struct stat& status) {
    exists = stat(target.c_str(), &status) == 0;
    if (!exists) {
        return errno == ENOENT ? 0 : errno;
    }
    if (S_ISDIR(status.st_mode)) {
        return EISDIR;
    }
    if (!S_ISREG(status.st_mode)) {
        return ENODEV;
    }
    return faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) == 0 ? 0 : errno;
}

int FillAndRename(Descriptor file, const std::string& temporary, const std::string& target,
                  std::string_view content, const struct stat* old) {
    int error = WriteAll(file.Get(), content);
    if (error == 0 && old != nullptr) {
        KeepPermissions(file.Get(), *old);
    }
    if (error == 0 && fsync(file.Get()) != 0) {
        error = errno;
    }
    if (!file.Close() && error == 0) {
        error = errno;
    }
    if (error == 0 && std::rename(temporary.c_str(), target.c_str()) != 0) {
        error = errno;
    }
    return error;
}

/// The new name itself reaches the disk with its folder; where that cannot be asked for, the
/// content is safe all the same.
void FlushFolder(const std::string& folder) {
    const Descriptor handle(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (handle.Valid()) {
        fsync(handle.Get());
    }
}

/// 0, or errno; EEXIST where `to` is taken.
int RenameToFreeName(const std::string& from, const std::string& to) {
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return 0;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        return errno;
    }
    // A disk that knows no such renaming: what takes the name in this moment would be lost.
    struct stat taken {};
    if (lstat(to.c_str(), &taken) == 0) {
        return EEXIST;
    }
    return std::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

}  // namespace

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
    std::string target = nativePath;
    if (target.empty()) {
        return ENOENT;
    }
    if (const int error = FollowLinks(target)) {
        return error;
    }
    bool exists = false;
    struct stat old {};
    if (const int error = CheckTarget(target, exists, old)) {
        return error;
    }
    if (target.ends_with('/')) {
        return EISDIR;
    }
    const std::string folder = FolderOf(target);
    std::string temporary;
    Descriptor file = MakeTemporary(folder, temporary);
    if (!file.Valid()) {
        return errno == ENOENT ? ENOTDIR : errno;  // nothing but the folder can be missing
    }
    const int error =
        FillAndRename(std::move(file), temporary, target, content, exists ? &old : nullptr);
    if (error != 0) {
        unlink(temporary.c_str());
        return error;
    }
    FlushFolder(folder);
    return 0;
}

}  // namespace posix_adapter

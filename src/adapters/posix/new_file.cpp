#include "adapters/posix/new_file.h"

#include <fcntl.h>

#include <atomic>
#include <cerrno>
#include <cstdio>

namespace posix_adapter {

namespace {

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

/// New file beside the target. Its name is put in `path`.
Descriptor MakeTemporary(const std::string& folder, mode_t mode, std::string& path) {
    static std::atomic<unsigned> counter{0};
    constexpr int kMostTries = 1000;
    for (int i = 0; i < kMostTries; ++i) {
        path = folder + ".parapico-" + std::to_string(getpid()) + "-" + std::to_string(counter++) +
               ".tmp";
        Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
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

void KeepPermissionsOf(int fd, const struct stat& old) {
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

}  // namespace

int NewFile::Begin(const std::string& nativePath, mode_t freshMode) {
    GiveUp();
    target_ = nativePath;
    if (target_.empty()) {
        return ENOENT;
    }
    if (const int error = FollowLinks(target_)) {
        return error;
    }
    if (const int error = CheckTarget(target_, exists_, old_)) {
        return error;
    }
    if (target_.ends_with('/')) {
        return EISDIR;
    }
    constexpr mode_t kOwnerOnly = 0600;
    file_ = MakeTemporary(FolderOf(target_), exists_ ? kOwnerOnly : freshMode, temporary_);
    if (file_.Valid()) {
        if (exists_) {
            KeepPermissionsOf(file_.Get(), old_);
        }
        return 0;
    }
    temporary_.clear();
    return errno == ENOENT ? ENOTDIR : errno;  // nothing but the folder can be missing
}

int NewFile::Write(std::string_view content) {
    return WriteAll(file_.Get(), content);
}

int NewFile::Flush() {
    const int error = fsync(file_.Get()) != 0 ? errno : 0;
    const int late = Close();
    return error != 0 ? error : late;
}

int NewFile::Close() {
    return file_.Close() ? 0 : errno;
}

int NewFile::Commit(bool durable) {
    if (std::rename(temporary_.c_str(), target_.c_str()) != 0) {
        return errno;
    }
    temporary_.clear();
    if (durable) {
        FlushFolder(FolderOf(target_));
    }
    return 0;
}

void NewFile::GiveUp() {
    file_.Close();
    if (!temporary_.empty()) {
        unlink(temporary_.c_str());
        temporary_.clear();
    }
}

std::string FolderOf(const std::string& path) {
    const size_t last = path.rfind('/');
    return last == std::string::npos ? "./" : path.substr(0, last + 1);
}

void FlushFolder(const std::string& folder) {
    const Descriptor handle(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (handle.Valid()) {
        fsync(handle.Get());
    }
}

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

}  // namespace posix_adapter

#include "adapters/posix/posix_file_changes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <vector>

#include "adapters/posix/error_text.h"
#include "adapters/posix/new_file.h"
#include "adapters/posix/posix_files.h"
#include "adapters/posix/watched_work.h"

namespace posix_adapter {

namespace {

using platform::FileError;
using platform::Outcome;

bool SameFile(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

int CopyContent(int from, NewFile& to, WatchedWork& watched) {
    constexpr size_t kBlock = 1u << 20;
    std::vector<char> block(kBlock);
    while (true) {
        if (watched.Stopped()) {
            return ECANCELED;
        }
        const ssize_t count = read(from, block.data(), block.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return count < 0 ? errno : 0;
        }
        if (const int error = to.Write({block.data(), static_cast<size_t>(count)})) {
            return error;
        }
        watched.done += count;
    }
}

/// A disk that keeps no dates has none to give.
void TakeDateOver(int fd, const struct stat& source) {
    const timespec times[2] = {source.st_atim, source.st_mtim};
    if (futimens(fd, times) != 0) {
        return;
    }
}

/// The file is the one that was copied, to its last byte.
bool IsUnchanged(const std::string& path, const struct stat& copied) {
    struct stat now {};
    return stat(path.c_str(), &now) == 0 && SameFile(now, copied) &&
           now.st_size == copied.st_size && now.st_mtim.tv_sec == copied.st_mtim.tv_sec &&
           now.st_mtim.tv_nsec == copied.st_mtim.tv_nsec;
}

int RemoveCopied(const std::string& path, const struct stat& copied) {
    if (!IsUnchanged(path, copied)) {
        return EBUSY;
    }
    return unlink(path.c_str()) == 0 ? 0 : errno;
}

/// Copies that replace nothing can be made again, so many of them wait for the disk together, once
/// a second. 0, or errno.
int CloseOfMany(NewFile& target) {
    using std::chrono::steady_clock;
    static std::atomic<steady_clock::duration> flushedAt{};
    const steady_clock::duration now = steady_clock::now().time_since_epoch();
    if (now - flushedAt.load() < std::chrono::seconds(1)) {
        return target.Close();
    }
    if (syncfs(target.Fd()) != 0) {
        return errno;
    }
    flushedAt = steady_clock::now().time_since_epoch();
    return target.Close();
}

/// 0, or errno: ECANCELED when it was stopped.
int CopyFile(const std::string& from, const std::string& to, bool removeSource,
             WatchedWork& watched) {
    const Descriptor source = OpenPlainFile(from);
    struct stat status {};
    if (!source.Valid() || fstat(source.Get(), &status) != 0) {
        return errno;
    }
    NewFile target;
    if (const int error = target.Begin(to, status.st_mode & 0777)) {
        return error;
    }
    if (target.Old() && SameFile(*target.Old(), status)) {
        return EEXIST;
    }
    const bool durable = removeSource || target.Old() != nullptr;
    const mode_t mode = status.st_mode & 0777;
    if (!target.Old() && fchmod(target.Fd(), mode) != 0) {
        // The disk keeps none.
    }
    watched.whole = status.st_size;
    int error = CopyContent(source.Get(), target, watched);
    if (error == 0) {
        TakeDateOver(target.Fd(), status);
        error = durable ? target.Flush() : CloseOfMany(target);
    }
    if (error == 0 && !watched.MayCommit()) {
        error = ECANCELED;
    }
    if (error == 0) {
        error = target.Commit(durable);
    }
    return error == 0 && removeSource ? RemoveCopied(from, status) : error;
}

/// 0 where the file could be taken out of its folder.
int CheckRemovable(const std::string& path) {
    return faccessat(AT_FDCWD, FolderOf(path).c_str(), W_OK | X_OK, AT_EACCESS) == 0 ? 0 : errno;
}

/// 0, errno, or EXDEV where it takes a copy.
int MoveAtOnce(const std::string& from, const std::string& to) {
    struct stat source {
    }, link{}, target{};
    if (stat(from.c_str(), &source) != 0 || lstat(from.c_str(), &link) != 0) {
        return errno;
    }
    if (!S_ISREG(source.st_mode)) {
        return S_ISDIR(source.st_mode) ? EISDIR : ENODEV;
    }
    if (const int error = CheckRemovable(from)) {
        return error;
    }
    const bool exists = stat(to.c_str(), &target) == 0;
    if (exists && SameFile(source, target)) {
        return EEXIST;
    }
    // What links point to is copied: a link may mean something else in another folder, and one at
    // the target stays a link.
    struct stat targetLink {};
    const bool toLink = lstat(to.c_str(), &targetLink) == 0 && S_ISLNK(targetLink.st_mode);
    if (S_ISLNK(link.st_mode) || toLink) {
        return EXDEV;
    }
    if (exists) {
        NewFile check;  // what may not be replaced is refused here as everywhere
        if (const int error = check.Begin(to)) {
            return error;
        }
    }
    if (std::rename(from.c_str(), to.c_str()) != 0) {
        return errno;
    }
    FlushFolder(FolderOf(to));
    FlushFolder(FolderOf(from));
    return 0;
}

bool Told(int failure, FileError& error) {
    if (failure != 0) {
        error.message =
            failure == EEXIST ? Text(u"同じ名前のファイルがすでにあります。") : ErrorText(failure);
    }
    return failure == 0;
}

bool HoldsZero(TextView path) {
    return path.find(u'\0') != TextView::npos;
}

Outcome Transfer(PosixFiles& files, TextView from, TextView to, bool removeSource,
                 const platform::Report& report, bool threads, FileError& error) {
    const std::optional<std::string> source = files.Find(from);
    if (!source || to.empty() || HoldsZero(to)) {
        Told(source ? EINVAL : ENOENT, error);
        return Outcome::Failed;
    }
    const std::string target = files.NativeTarget(to);
    if (removeSource) {
        const int moved = MoveAtOnce(*source, target);
        if (moved != EXDEV) {
            return Told(moved, error) ? Outcome::Done : Outcome::Failed;
        }
    }
    struct stat folder {};
    const bool known = stat(FolderOf(target).c_str(), &folder) == 0;
    int failure = 0;
    const Outcome outcome = RunWatched(
        [source = *source, target, removeSource](WatchedWork& watched) {
            return CopyFile(source, target, removeSource, watched);
        },
        report, threads, failure);
    if (outcome == Outcome::Done && known) {
        files.Added(target, folder.st_mtim);
    }
    Told(outcome == Outcome::Failed ? failure : 0, error);
    return outcome;
}

/// The note that the desktop's trash keeps of what lies in it; nothing without one.
void ForgetTrashed(const std::string& kept) {
    const std::filesystem::path path(kept);
    if (path.parent_path().filename() == "files") {
        const auto note = path.parent_path().parent_path() / "info" / path.filename();
        unlink((note.string() + ".trashinfo").c_str());
    }
}

}  // namespace

MoveToTrash TrashIn(std::string folder) {
    return [folder = std::move(folder)](const std::string& path, std::string& kept) {
        std::error_code failed;
        std::filesystem::create_directories(folder, failed);
        const std::string target =
            (std::filesystem::path(folder) / std::filesystem::path(path).filename()).string();
        int error = EEXIST;
        constexpr int kMostTries = 1000;
        for (int number = 1; error == EEXIST && number <= kMostTries; ++number) {
            kept = target + (number > 1 ? "-" + std::to_string(number) : "");
            error = RenameToFreeName(path, kept);
        }
        return error == EXDEV ? ENOTSUP : error;
    };
}

Outcome PosixFileChanges::Copy(TextView from, TextView to, const platform::Report& report,
                               FileError& error) {
    return Transfer(files_, from, to, false, report, threads_, error);
}

Outcome PosixFileChanges::Move(TextView from, TextView to, const platform::Report& report,
                               FileError& error) {
    return Transfer(files_, from, to, true, report, threads_, error);
}

bool PosixFileChanges::Trash(TextView path, Text& kept, FileError& error) {
    kept.clear();
    const std::optional<std::string> found = files_.Find(path);
    if (!found) {
        return Told(ENOENT, error);
    }
    if (const int refused = CheckRemovable(*found)) {
        return Told(refused, error);
    }
    struct stat status {};
    if (lstat(found->c_str(), &status) != 0 || S_ISDIR(status.st_mode)) {
        return Told(S_ISDIR(status.st_mode) ? EISDIR : errno, error);
    }
    std::string place;
    int failure = trash_ ? trash_(*found, place) : ENOTSUP;
    if (failure == 0) {
        kept = text::FromUtf8(place);
    } else if (failure == ENOTSUP) {
        failure = unlink(found->c_str()) == 0 ? 0 : errno;
    }
    return Told(failure, error);
}

bool PosixFileChanges::Restore(TextView kept, TextView path, FileError& error) {
    const std::string from = text::ToUtf8(kept);
    const std::string to = files_.NativeTarget(path);
    int failure = path.empty() || HoldsZero(path) ? EINVAL : RenameToFreeName(from, to);
    if (failure == EXDEV) {
        struct stat taken {};
        WatchedWork unwatched;
        failure = lstat(to.c_str(), &taken) == 0 ? EEXIST : CopyFile(from, to, true, unwatched);
    }
    if (failure == 0) {
        ForgetTrashed(from);
    }
    return Told(failure, error);
}

bool PosixFileChanges::MakeFolder(TextView path, FileError& error) {
    if (path.empty() || HoldsZero(path)) {
        return Told(EINVAL, error);
    }
    std::error_code failed;
    const std::filesystem::path native(files_.NativeTarget(path));
    std::filesystem::create_directories(native, failed);
    std::error_code unknown;
    if (failed && std::filesystem::is_directory(native, unknown)) {
        failed.clear();
    }
    return Told(failed.value(), error);
}

bool PosixFileChanges::CanWrite(TextView path) {
    const std::optional<std::string> found = files_.Find(path);
    struct stat status {};
    if (!found || stat(found->c_str(), &status) != 0) {
        return !path.empty() && !HoldsZero(path) && CheckRemovable(files_.NativeTarget(path)) == 0;
    }
    if (S_ISDIR(status.st_mode)) {
        return CheckRemovable(*found + "/.") == 0;
    }
    // The new content takes the old one's place, so the folder must let a file be made, too.
    return S_ISREG(status.st_mode) && CheckRemovable(*found) == 0 &&
           faccessat(AT_FDCWD, found->c_str(), W_OK, AT_EACCESS) == 0;
}

}  // namespace posix_adapter

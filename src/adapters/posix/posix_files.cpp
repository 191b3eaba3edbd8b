#include "adapters/posix/posix_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <new>
#include <utility>

#include "adapters/posix/descriptor.h"
#include "adapters/posix/error_text.h"
#include "text/paths.h"

namespace posix_adapter {

namespace {

bool IsPlainFile(const std::string& nativePath, struct stat& status) {
    return stat(nativePath.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

/// Whole content; 0 or the errno value of what failed. The size asked for before is a hint only:
/// a file may grow meanwhile, and some have none.
int ReadAll(int fd, size_t sizeHint, size_t limit, std::string& content) {
    constexpr size_t kStep = 64u << 10;
    std::string read;
    size_t filled = 0;
    while (true) {
        if (filled > limit) {
            return EFBIG;
        }
        if (filled == read.size()) {
            read.resize(filled == 0 ? sizeHint + 1 : filled + std::max(filled / 2, kStep));
        }
        const ssize_t count = ::read(fd, read.data() + filled, read.size() - filled);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return errno;
        }
        if (count == 0) {
            break;
        }
        filled += static_cast<size_t>(count);
    }
    read.resize(filled);
    content = std::move(read);
    return 0;
}

int ReadPlainFile(const std::string& nativePath, size_t limit, std::string& content) {
    const Descriptor file = OpenPlainFile(nativePath);
    if (!file.Valid()) {
        return errno;
    }
    struct stat status {};
    if (fstat(file.Get(), &status) != 0) {
        return errno;
    }
    const auto size = static_cast<size_t>(status.st_size);
    if (size > limit) {
        return EFBIG;
    }
    try {
        return ReadAll(file.Get(), size, limit, content);
    } catch (const std::bad_alloc&) {
        return ENOMEM;
    }
}

/// The disk took the file and refused its content.
bool IsContentFailure(int error) {
    return error == ENOSPC || error == EDQUOT || error == EFBIG || error == EIO;
}

}  // namespace

Descriptor OpenPlainFile(const std::string& nativePath) {
    const auto refuse = [](const struct stat& status) {
        errno = S_ISDIR(status.st_mode) ? EISDIR : ENODEV;
        return Descriptor();
    };
    struct stat status {};
    if (stat(nativePath.c_str(), &status) != 0) {
        return Descriptor();
    }
    // Asked before opening, since opening alone may set a device in motion.
    if (!S_ISREG(status.st_mode)) {
        return refuse(status);
    }
    Descriptor file(open(nativePath.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (file.Valid() && fstat(file.Get(), &status) == 0 && !S_ISREG(status.st_mode)) {
        return refuse(status);
    }
    return file;
}

PosixFiles::PosixFiles(std::string programFolder) : finder_(std::move(programFolder)) {
    struct sigaction present {};
    if (sigaction(SIGXFSZ, nullptr, &present) == 0 && present.sa_handler == SIG_DFL) {
        std::signal(SIGXFSZ, SIG_IGN);
    }
}

std::optional<std::string> PosixFiles::Find(TextView path) {
    return finder_.Find(path);
}

std::string PosixFiles::NativeTarget(TextView path) {
    return finder_.Target(path);
}

Text PosixFiles::Dir(TextView path) {
    struct stat status {};
    const std::optional<std::string> found = Find(path);
    if (!found || !IsPlainFile(*found, status)) {
        return {};
    }
    return text::BareName(text::FromUtf8(*found));
}

bool PosixFiles::Exists(TextView path) {
    struct stat status {};
    const std::optional<std::string> found = Find(path);
    return found && IsPlainFile(*found, status);
}

bool PosixFiles::Read(TextView path, std::string& content, platform::FileError& error,
                      size_t limit) {
    const std::optional<std::string> found = Find(path);
    const int failure = found ? ReadPlainFile(*found, limit, content) : ENOENT;
    if (failure != 0) {
        error.message = ErrorText(failure);
    }
    return failure == 0;
}

bool PosixFiles::Write(TextView path, std::string_view content, platform::FileError& error) {
    const bool holdsZero = path.find(u'\0') != TextView::npos;
    const int failure = holdsZero ? EINVAL : ReplaceFile(NativeTarget(path), content);
    if (failure != 0) {
        error.message = ErrorText(failure);
        error.whileOpening = !IsContentFailure(failure);
    }
    return failure == 0;
}

bool PosixFiles::SetAside(TextView path, TextView mark, Text& name, platform::FileError& error) {
    const std::optional<std::string> found = Find(path);
    std::string kept;
    const int failure = found ? RenameAside(*found, text::ToUtf8(mark), kept) : ENOENT;
    if (failure != 0) {
        error.message = ErrorText(failure);
        return false;
    }
    name = text::BareName(text::FromUtf8(kept));
    return true;
}

int PosixFiles::Readable(TextView path) {
    constexpr size_t kProbe = 45;
    struct stat status {};
    const std::optional<std::string> found = Find(path);
    if (!found || !IsPlainFile(*found, status)) {
        return 0;
    }
    const Descriptor file = OpenPlainFile(*found);
    char bytes[kProbe];
    return file.Valid() && ::read(file.Get(), bytes, sizeof bytes) >= 0 ? 1 : 2;
}

bool PosixFiles::BeginsWith(TextView path, std::string_view bytes) {
    const std::optional<std::string> found = Find(path);
    const Descriptor file = found ? OpenPlainFile(*found) : Descriptor();
    std::string start(bytes.size(), '\0');
    return file.Valid() &&
           ::read(file.Get(), start.data(), start.size()) == static_cast<ssize_t>(bytes.size()) &&
           start == bytes;
}

std::optional<platform::DateTime> PosixFiles::LastWrite(TextView path) {
    struct stat status {};
    const std::optional<std::string> found = Find(path);
    return found && IsPlainFile(*found, status) ? WrittenAt(status) : std::nullopt;
}

std::optional<platform::DateTime> WrittenAt(const struct stat& status) {
    struct tm local {};
    if (localtime_r(&status.st_mtim.tv_sec, &local) == nullptr) {
        return std::nullopt;
    }
    return platform::FromCalendar({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
                                   local.tm_hour, local.tm_min, local.tm_sec});
}

}  // namespace posix_adapter

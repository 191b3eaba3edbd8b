// A file descriptor that closes itself.
#pragma once

#include <unistd.h>

#include <utility>

namespace posix_adapter {

class Descriptor {
public:
    explicit Descriptor(int fd = -1) : fd_(fd) {}
    ~Descriptor() { Close(); }
    Descriptor(Descriptor&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(fd_, other.fd_);
        return *this;
    }

    bool Valid() const { return fd_ >= 0; }
    int Get() const { return fd_; }

    /// False (errno tells) when the system reports a late write error. Harmless when closed.
    bool Close() { return fd_ < 0 || close(std::exchange(fd_, -1)) == 0; }

private:
    int fd_;
};

}  // namespace posix_adapter

#include "adapters/sandbox/transfer.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <type_traits>

namespace sandbox {

namespace {

static_assert(std::is_same_v<platform::Pixel, uint32_t>);

constexpr uint32_t kOpaque = 0xFF000000u;

/// -1 for what is no plain file.
int64_t PlainSize(int descriptor) {
    struct stat status {};
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) ? status.st_size : -1;
}

/// False when it ends, or fails, before the bytes are full.
bool ReadAll(int descriptor, uint8_t* bytes, size_t size) {
    size_t done = 0;
    while (done < size) {
        const ssize_t got = pread(descriptor, bytes + done, size - done, static_cast<off_t>(done));
        if (got > 0) {
            done += static_cast<size_t>(got);
        } else if (got == 0 || errno != EINTR) {
            return false;
        }
    }
    return true;
}

}  // namespace

std::optional<std::vector<uint8_t>> ReadFile(int file) {
    const int64_t size = PlainSize(file);
    if (size <= 0 || size > kMostFileBytes) {
        return std::nullopt;
    }
    std::vector<uint8_t> bytes(static_cast<size_t>(size));
    return ReadAll(file, bytes.data(), bytes.size()) ? std::optional(std::move(bytes))
                                                     : std::nullopt;
}

Descriptor MakeMemory(const char* name, std::span<const uint8_t> content) {
    Descriptor memory(memfd_create(name, MFD_CLOEXEC | MFD_ALLOW_SEALING));
    size_t done = 0;
    while (memory.Valid() && done < content.size()) {
        const ssize_t put = pwrite(memory.Get(), content.data() + done, content.size() - done,
                                   static_cast<off_t>(done));
        if (put > 0) {
            done += static_cast<size_t>(put);
        } else if (put == 0 || errno != EINTR) {
            return Descriptor();
        }
    }
    return memory;
}

Descriptor MakePixels(std::span<const uint32_t> pixels) {
    return MakeMemory("picture",
                      {reinterpret_cast<const uint8_t*>(pixels.data()), pixels.size_bytes()});
}

platform::BitmapPtr ReadPixels(int memory, platform::Size size) {
    const int64_t bytes = int64_t{size.width} * size.height * 4;
    // Only files in memory have seals, and only nameless ones may have more of them. Reading any
    // other might wait for ever.
    const int seals = fcntl(memory, F_GET_SEALS);
    if (!FitsBound(size) || seals == -1 || (seals & F_SEAL_SEAL) != 0 ||
        PlainSize(memory) != bytes) {
        return nullptr;
    }
    auto bitmap = std::make_shared<platform::Bitmap>(size.width, size.height);
    if (!ReadAll(memory, reinterpret_cast<uint8_t*>(bitmap->pixels.data()),
                 static_cast<size_t>(bytes))) {
        return nullptr;
    }
    for (platform::Pixel& pixel : bitmap->pixels) {
        pixel |= kOpaque;
    }
    return bitmap;
}

}  // namespace sandbox

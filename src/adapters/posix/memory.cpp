#include "adapters/posix/memory.h"

#include <malloc.h>

namespace posix_adapter {

void ReuseFreedPictures() {
    // A fresh page costs more than the pixels that are written to it. The first is the most that
    // the library takes: larger pieces still come and go as pages of their own.
    constexpr int kMostKept = 32 << 20, kMostUnused = 64 << 20;
    mallopt(M_MMAP_THRESHOLD, kMostKept);
    mallopt(M_TRIM_THRESHOLD, kMostUnused);
    // More arenas would keep apart what one thread frees and another needs, and double the memory
    // of sound's many short threads.
    mallopt(M_ARENA_MAX, 1);
}

}  // namespace posix_adapter

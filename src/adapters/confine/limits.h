// What the decoder's process may do, once it holds hostile pictures: decode, and nothing else.
#pragma once

#include <cstdint>

#include "adapters/sandbox/message.h"

namespace confine {

/// Addresses of the process, and of a helper that it starts.
constexpr uint64_t kMostMemory = uint64_t{2} << 30;
/// Processor time of one picture.
constexpr int kPictureSeconds = 8;

/// What a process may keep beyond what it had when it was warm, in bytes: what damaged pictures
/// leave behind adds up. Addresses are kept for threads, too, so there may be more of them.
constexpr uint64_t kMostKept = uint64_t{512} << 20;
constexpr uint64_t kMostKeptAddresses = uint64_t{1} << 30;

/// The process ends when its program does, with all that it started. Call first.
void FollowProgram(sandbox::Role role);

/// Once and for good, for this process and all that it starts: memory, length of written files,
/// number of open ones, no dumps, no new rights. Memory without a name (memfd) counts as files: as
/// many as can be open, each of the longest length. No network, no tracing of others. Raster: no
/// file can be opened and no program started any more. Eps: Ghostscript can be started and can read
/// what is installed with it; Svg: libraries and fonts can be read; neither can write. False when
/// the system refuses what must be there; where the kernel cannot confine the files that are opened
/// (before 5.13), drawings go on and can read what the user can.
bool LimitProcess(sandbox::Role role);

/// From now on the process has this much processor time; then it dies of SIGXCPU.
void AllowProcessorTime(int seconds);

struct MemoryUse {
    uint64_t addresses = 0, resident = 0;  // bytes
};

/// Opens what says how much memory is used; it cannot be opened under the limits. Call once.
void WatchMemory();

/// Of this process now. Zeros where WatchMemory was not called, or failed.
MemoryUse UsedMemory();

/// Whether one of the bounds of what is kept is exceeded.
bool HasGrown(const MemoryUse& from, const MemoryUse& to);

/// Kills this process and all of its group, which it must lead; else this process alone.
[[noreturn]] void EndGroup();

}  // namespace confine

// How work that takes long tells how far it is and is stopped.
#pragma once

#include <cstdint>
#include <functional>

namespace platform {

struct Progress {
    int64_t done = 0;
    int64_t whole = 0;  // in the same unit, bytes or pieces; 0 while it is not known
};

/// Called by work that takes long, on its caller's thread: at once, then every few milliseconds.
/// False stops the work. It may run handlers and may throw, which stops the work too.
using Report = std::function<bool(const Progress&)>;

enum class Outcome {
    Done,
    Stopped,  // by its report; nothing half made stays
    Failed,
};

}  // namespace platform

// What is known of files, found out by the way.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "platform/event_loop.h"
#include "text/text.h"

namespace platform {

struct FileFacts {
    bool there = false;  // a plain file that was found
    int64_t size = 0;    // bytes
    std::optional<DateTime> changed;
    std::optional<DateTime> taken;  // by the camera; only where it was asked for
};

/// Looks at files on workers, since a disk can be asleep or far away.
class FileInquiry {
public:
    virtual ~FileInquiry() = default;

    enum What { Presence, DateTaken };  // DateTaken: presence and all else, too; opens the file
    using Ready = std::function<void(const Text& path, const FileFacts& facts)>;

    /// `ready` is called once for each path, on the caller's thread: later from the event loop, in
    /// the robot at once from within. What was asked last is answered first. Paths are found as by
    /// Files.
    virtual void Ask(const void* owner, std::vector<Text> paths, What what, Ready ready) = 0;

    /// No answer comes to that owner any more, as it must say before it goes.
    virtual void Forget(const void* owner) = 0;
};

}  // namespace platform

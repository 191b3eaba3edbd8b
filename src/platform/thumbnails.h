// Small pictures of files, made by the way.
#pragma once

#include <functional>
#include <vector>

#include "platform/canvas.h"
#include "text/text.h"

namespace platform {

class Thumbnails {
public:
    virtual ~Thumbnails() = default;

    /// `picture` is no larger than the side that was asked for, each way, and never larger than the
    /// file's own picture; null where the file has none that can be read.
    using Ready = std::function<void(const Text& path, const BitmapPtr& picture)>;

    /// What `owner` wants from now on, the most urgent first, in place of what it wanted before and
    /// has no answer for: that is dropped from the queue. Never waits for a file. `ready` is called
    /// once for each path, on the caller's thread: later from the event loop, in the robot at once
    /// from within. No path: the owner wants nothing any more, as it must say before it goes.
    /// `side`: pixels of the square to fit, 1 to 1024.
    virtual void Want(const void* owner, const std::vector<Text>& paths, int side, Ready ready) = 0;
};

}  // namespace platform

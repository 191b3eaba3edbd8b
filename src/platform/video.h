// The one way to moving pictures: one player for the whole program.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>

#include "platform/imaging.h"
#include "text/text.h"

namespace platform {

enum class VideoState {
    Nothing,  // no file
    Loading,  // opened, or Play was called, and nothing shows yet
    Ready,    // did not or cannot play, or has played to its end and was rewound
    Playing,
    Paused,
    Stopped,  // ended
};

/// 32-bit rows, 0xFFRRGGBB. `pixels` is null where there is no picture; it lives as long as
/// `owner`.
struct VideoFrame {
    const uint8_t* pixels = nullptr;
    int width = 0, height = 0;
    int stride = 0;  // bytes from one row to the next
    std::shared_ptr<void> owner;
};

/// Largest size of that shape within the room, at least 1 x 1; empty where either is.
inline Size Fitted(Size shape, Size room) {
    if (shape.Empty() || room.Empty()) {
        return {};
    }
    const auto scaled = [](int length, int by, int of) {
        return std::max(1, static_cast<int>((int64_t{length} * by + of / 2) / of));
    };
    return int64_t{shape.width} * room.height <= int64_t{room.width} * shape.height
               ? Size{scaled(room.height, shape.width, shape.height), room.height}
               : Size{room.width, scaled(room.width, shape.height, shape.width)};
}

class Video {
public:
    virtual ~Video() = default;
    /// Opens the file and closes the one before, without playing it. Empty: closes only. Only
    /// Status says that a file cannot be had.
    virtual void SetUrl(TextView path) = 0;
    /// From the beginning, or on from a pause. Nothing happens without a file.
    virtual void Play() = 0;
    /// On: from the end goes on at the beginning. Stays until it is set again.
    virtual void SetLoop(bool on) = 0;
    /// Ends what plays; no file is open afterwards.
    virtual void Close() = 0;
    /// Never blocks.
    virtual VideoState Status() = 0;
    /// Pixels of the picture, upright and with square ones; empty until they are known. Never
    /// blocks.
    virtual Size NaturalSize() = 0;
    /// Returns when the size is known or never will be, or when the time is over; nothing runs
    /// meanwhile.
    virtual void AwaitSize(int milliseconds) = 0;
    /// The room, in pixels, that pictures are shown in. The next ones come fitted to it; without
    /// one they come as they are.
    virtual void SetRoom(Size room) = 0;
    /// The newest picture. It is of the room's size, or still of another.
    virtual VideoFrame Frame() = 0;
    /// Given by the view: called on the user-interface thread when a new picture or state is there.
    std::function<void()> onFrame;
};

}  // namespace platform

// One picture file: its header, and decoding at a chosen size.
#pragma once

#include <sys/types.h>
#include <time.h>

#include <atomic>
#include <memory>
#include <string>

#include "adapters/door/client.h"
#include "adapters/imaging/sniff.h"
#include "platform/imaging.h"

namespace imaging {

/// Largest picture that is decoded, as opaque pixels.
constexpr int64_t kMostBytes = door::kMostPixelBytes;
bool FitsMemory(platform::Size size);

/// A file whose header was read. Immutable; stays usable when the file is gone, but for decoding.
/// SVG, and what the toolkit does not read, is decoded by `decoder`, the calling thread's own.
class PictureFile {
public:
    /// Nullptr where the file is no plain file, cannot be opened, is of no known kind or has an
    /// unreadable header. Waits for nothing but the decoder; never throws. Where nothing less
    /// tells the size, the picture is decoded here, and the first Decode has it ready.
    static std::shared_ptr<PictureFile> Open(const std::string& nativePath, door::Client& decoder);

    /// The picture's own size, turned upright.
    platform::Size OwnSize() const { return own_; }

    /// True for a drawing without pixels of its own, sharp at every size.
    bool IsDrawing() const { return foreign_ == door::Kind::Svg || foreign_ == door::Kind::Eps; }

    /// Whether the file is still the one that was opened.
    bool IsUnchanged() const;

    /// Whether decoding at this size is less work than decoding whole.
    bool DecodesScaledTo(platform::Size size) const;

    /// Opaque pixels of the given size; `size` must be the own size or one that DecodesScaledTo.
    /// Null when the file is damaged, gone, or another one than it was, or when the memory would
    /// not do. `depth` (may be null) gets the file's bits per pixel.
    platform::BitmapPtr Decode(platform::Size size, int* depth, door::Client& decoder) const;

private:
    struct Identity {
        dev_t device = 0;
        ino_t node = 0;
        off_t size = 0;
        timespec changed{};
    };
    friend class PictureReader;

    platform::BitmapPtr DecodeForeign(platform::Size size, door::Client& decoder) const;

    std::string path_;
    Kind kind_ = Kind::None;
    door::Kind foreign_ = door::Kind::None;  // what is decoded behind the door
    int foreignDepth_ = 0;
    mutable std::atomic<platform::BitmapPtr> ready_;  // of the own size, until the first Decode
    Identity identity_;
    platform::Size own_;
    bool sideways_ = false;          // stored turned by a quarter
    int64_t scaledDecodeBytes_ = 0;  // working memory of a scaled decode beside its result
};

}  // namespace imaging

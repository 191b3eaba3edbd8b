// One picture file: its header, and decoding at a chosen size.
#pragma once

#include <sys/types.h>
#include <time.h>

#include <atomic>
#include <memory>
#include <optional>
#include <string>

#include "adapters/imaging/sniff.h"
#include "platform/imaging.h"

namespace imaging {

/// Largest picture that is decoded, as opaque pixels.
constexpr int64_t kMostBytes = int64_t{1} << 30;
bool FitsMemory(platform::Size size);

/// Which file it is, and in what state of its content. The last change of the inode counts too:
/// whoever puts size and write time back cannot put that back.
struct FileIdentity {
    dev_t device = 0;
    ino_t node = 0;
    off_t size = 0;
    timespec written{}, changed{};
    friend bool operator==(const FileIdentity& a, const FileIdentity& b);
};

/// Nullopt where there is no plain file.
std::optional<FileIdentity> IdentityOf(const std::string& nativePath);

/// What each thread that reads pictures has of its own.
struct ReadingContext {
    /// Drawings may hold text, which only the thread of the windows draws.
    bool drawings = true;
    /// May be set by another thread: from then on reads fail, so that a decoder ends soon.
    std::atomic<bool> giveUp{false};
};

/// A file whose header was read. Immutable; stays usable when the file is gone, but for decoding.
/// One thread may open it and another one decode it.
class PictureFile {
public:
    /// Nullptr where the file is no plain file, cannot be opened, is of no known kind or has an
    /// unreadable header. Never waits and never throws.
    static std::shared_ptr<PictureFile> Open(const std::string& nativePath,
                                             ReadingContext& context);

    const FileIdentity& Identity() const { return identity_; }

    /// The picture's own size, turned upright.
    platform::Size OwnSize() const { return own_; }

    /// True for a drawing without pixels of its own, sharp at every size.
    bool IsDrawing() const { return kind_ == Kind::Svg; }

    /// Whether decoding at this size is less work than decoding whole.
    bool DecodesScaledTo(platform::Size size) const;

    /// Size at which to decode a picture that will be wanted at `wanted`: that, where it is known
    /// and not larger than the picture, otherwise the own size. A drawing takes any.
    platform::Size SizeToDecode(platform::Size wanted) const;

    /// Memory that decoding at `size` takes on its way, without the result.
    int64_t WorkingBytes(platform::Size size) const;

    /// Opaque pixels of the given size, decoded whole and scaled down where no scaled decoding is
    /// to be had. Null when the file is damaged, gone, or another one than it was, when the
    /// context gave up, or when the memory would not do. `depth` (may be null) gets the file's
    /// bits per pixel.
    platform::BitmapPtr Decode(platform::Size size, int* depth, ReadingContext& context) const;

private:
    friend class PictureReader;

    std::string path_;
    Kind kind_ = Kind::None;
    FileIdentity identity_;
    platform::Size own_;
    bool sideways_ = false;          // stored turned by a quarter
    int64_t scaledDecodeBytes_ = 0;  // working memory of a scaled decode beside its result
};

}  // namespace imaging

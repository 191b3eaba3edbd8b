// The desktop's own cache of thumbnails, shared with file managers: small PNG files named by the
// MD5 sum of the picture's address, which hold that address and the date of the file they show.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/canvas.h"

namespace imaging {

/// Which state of a file a thumbnail shows.
struct ThumbnailOf {
    std::string path;     // native and full
    int64_t written = 0;  // seconds
    int64_t size = 0;     // bytes
};

/// "file:///a%20b.jpg", in the spelling by which desktops name thumbnails.
std::string FileUri(const std::string& nativePath);

/// Used by any thread. Failures to read or write it are no failures: then nothing is kept.
class ThumbnailCache {
public:
    /// `folder`: native path, made at first use. Empty: nothing is ever found or kept.
    explicit ThumbnailCache(std::string folder) : folder_(std::move(folder)) {}

    /// "thumbnails" below $XDG_CACHE_HOME or ~/.cache.
    static std::string OfDesktop();

    struct Found {
        platform::BitmapPtr pixels;  // null: this program could make none of that state
    };
    /// Nullopt where nothing is kept that fits the file's state and a square of `side` pixels.
    std::optional<Found> Find(const ThumbnailOf& file, int side) const;

    /// The thumbnail made for a square of `side` pixels; null: none can be made.
    void Keep(const ThumbnailOf& file, const platform::BitmapPtr& pixels, int side) const;

private:
    std::string folder_;
};

/// The side of the kept thumbnails that serve a square of `side` pixels: 128, 256, 512 or 1024.
int KeptSide(int side);

}  // namespace imaging

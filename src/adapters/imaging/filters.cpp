#include "adapters/imaging/filters.h"

#include <algorithm>
#include <memory>

#include "adapters/imaging/pixels.h"

namespace imaging {

using platform::Bitmap;
using platform::BitmapPtr;
using platform::Pixel;
using platform::Rect;

namespace {

constexpr Pixel kOpaque = 0xFF000000u;

/// Mean of each colour part, rounded to the nearest. The area is not empty.
Pixel MeanColor(const Bitmap& bitmap, const Rect& area) {
    uint64_t red = 0, green = 0, blue = 0;
    for (int y = area.y; y < area.y + area.height; ++y) {
        const Pixel* row = bitmap.Row(y);
        for (int x = area.x; x < area.x + area.width; ++x) {
            red += row[x] >> 16 & 0xFF;
            green += row[x] >> 8 & 0xFF;
            blue += row[x] & 0xFF;
        }
    }
    const uint64_t count = static_cast<uint64_t>(area.width) * static_cast<uint64_t>(area.height);
    const auto mean = [count](uint64_t sum) {
        return static_cast<Pixel>((sum + count / 2) / count);
    };
    return kOpaque | mean(red) << 16 | mean(green) << 8 | mean(blue);
}

void FillArea(Bitmap& bitmap, const Rect& area, Pixel pixel) {
    for (int y = area.y; y < area.y + area.height; ++y) {
        std::fill_n(bitmap.Row(y) + area.x, area.width, pixel);
    }
}

}  // namespace

BitmapPtr Gray(const Bitmap& source) {
    auto result = std::make_shared<Bitmap>(source);
    for (Pixel& p : result->pixels) {
        p = kOpaque | static_cast<Pixel>(Brightness(p)) * 0x010101u;
    }
    return result;
}

BitmapPtr Mirrored(const Bitmap& source) {
    auto result = std::make_shared<Bitmap>(source);
    for (int y = 0; y < result->height; ++y) {
        std::reverse(result->Row(y), result->Row(y) + result->width);
    }
    return result;
}

BitmapPtr Mosaic(const Bitmap& source, int block) {
    auto result = std::make_shared<Bitmap>(source);
    // A larger block covers no more than the whole; steps stay within an int.
    const int side = std::clamp(block, 1, std::max({source.width, source.height, 1}));
    for (int y = 0; y < source.height; y += side) {
        for (int x = 0; x < source.width; x += side) {
            const Rect area{x, y, std::min(side, source.width - x),
                            std::min(side, source.height - y)};
            FillArea(*result, area, MeanColor(source, area));
        }
    }
    return result;
}

}  // namespace imaging

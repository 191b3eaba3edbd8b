#include "adapters/imaging/filters.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
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

/// A pixel's colour parts, red first.
struct Parts {
    int of[3];
};

Parts PartsOf(Pixel p) {
    return {{static_cast<int>(p >> 16 & 0xFF), static_cast<int>(p >> 8 & 0xFF),
             static_cast<int>(p & 0xFF)}};
}

Pixel PixelOf(const Parts& parts) {
    Pixel pixel = kOpaque;
    for (int i = 0; i < 3; ++i) {
        pixel |= static_cast<Pixel>(std::clamp(parts.of[i], 0, 255)) << (16 - 8 * i);
    }
    return pixel;
}

/// A pixel and those `reach` away on every side; those beyond the edge are the edge's.
struct Neighbours {
    const Pixel* rows[3];
    int columns[3];

    Neighbours(const Bitmap& bitmap, int x, int y, int reach) {
        for (int i = 0; i < 3; ++i) {
            rows[i] = bitmap.Row(std::clamp(y + (i - 1) * reach, 0, bitmap.height - 1));
            columns[i] = std::clamp(x + (i - 1) * reach, 0, bitmap.width - 1);
        }
    }
    /// dx and dy: -1, 0, 1.
    Parts At(int dx, int dy) const { return PartsOf(rows[dy + 1][columns[dx + 1]]); }
};

template <class OnePixel>
BitmapPtr MadeOf(const Bitmap& source, int reach, OnePixel onePixel) {
    auto result = std::make_shared<Bitmap>(source);
    for (int y = 0; y < source.height; ++y) {
        for (int x = 0; x < source.width; ++x) {
            result->Row(y)[x] = onePixel(Neighbours(source, x, y, reach));
        }
    }
    return result;
}

constexpr int kFullLevel = 8;    // of Edges
constexpr int kPerMille = 1000;  // of Embossed
constexpr int kReliefGround = 128;

/// Towards the light, by direction.
constexpr int kLight[8][2] = {{-1, -1}, {0, -1}, {1, -1}, {1, 0}, {1, 1}, {0, 1}, {-1, 1}, {-1, 0}};

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

BitmapPtr Mosaic(const Bitmap& source, int block, const platform::Scale& scale) {
    auto result = std::make_shared<Bitmap>(source);
    const auto [width, height] = scale.units;
    // A larger block covers no more than the whole; steps stay within an int.
    const int side = std::clamp(block, 1, std::max({width, height, 1}));
    for (int y = 0; y < height; y += side) {
        for (int x = 0; x < width; x += side) {
            const Rect area =
                scale.ToPixels(Rect{x, y, std::min(side, width - x), std::min(side, height - y)});
            if (!area.Empty()) {
                FillArea(*result, area, MeanColor(source, area));
            }
        }
    }
    return result;
}

BitmapPtr Flipped(const Bitmap& source) {
    auto result = std::make_shared<Bitmap>(source);
    for (int y = 0; y < source.height; ++y) {
        std::copy_n(source.Row(y), source.width, result->Row(source.height - 1 - y));
    }
    return result;
}

BitmapPtr Inverted(const Bitmap& source) {
    auto result = std::make_shared<Bitmap>(source);
    for (Pixel& p : result->pixels) {
        p = kOpaque | (~p & 0xFFFFFFu);
    }
    return result;
}

BitmapPtr Edges(const Bitmap& source, int level, int reach) {
    return MadeOf(source, reach, [level](const Neighbours& around) {
        Parts result{};
        for (int i = 0; i < 3; ++i) {
            const auto part = [&](int dx, int dy) { return around.At(dx, dy).of[i]; };
            const int across = part(1, -1) + 2 * part(1, 0) + part(1, 1) - part(-1, -1) -
                               2 * part(-1, 0) - part(-1, 1);
            const int down = part(-1, 1) + 2 * part(0, 1) + part(1, 1) - part(-1, -1) -
                             2 * part(0, -1) - part(1, -1);
            result.of[i] = (std::abs(across) + std::abs(down)) * level / kFullLevel;
        }
        return PixelOf(result);
    });
}

BitmapPtr Embossed(const Bitmap& source, int direction, int depth, int reach) {
    const auto& light = kLight[static_cast<size_t>(direction) % std::size(kLight)];
    return MadeOf(source, reach, [&light, depth](const Neighbours& around) {
        const Parts lit = around.At(light[0], light[1]);
        const Parts shaded = around.At(-light[0], -light[1]);
        Parts result{};
        for (int i = 0; i < 3; ++i) {
            result.of[i] = kReliefGround + (lit.of[i] - shaded.of[i]) * depth / kPerMille;
        }
        return PixelOf(result);
    });
}

}  // namespace imaging

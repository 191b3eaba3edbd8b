#include "adapters/imaging/pixels.h"

#include <QImage>
#include <algorithm>
#include <utility>
#include <vector>

namespace imaging {

using platform::Bitmap;
using platform::BitmapPtr;
using platform::Pixel;

namespace {

constexpr Pixel kOpaque = 0xFF000000u;
constexpr Pixel kWhite = 0xFFFFFFFFu;

/// Colour parts are multiplied by alpha already: white shows through by what is missing of it.
Pixel OverWhite(Pixel premultiplied) {
    const Pixel missing = 255 - (premultiplied >> 24);
    return kOpaque | (premultiplied + missing * 0x010101u);
}

/// The bitmap's own memory, seen as an image.
QImage View(const Bitmap& bitmap) {
    return QImage(reinterpret_cast<const uchar*>(bitmap.pixels.data()), bitmap.width, bitmap.height,
                  static_cast<qsizetype>(bitmap.width) * 4, QImage::Format_RGB32);
}

}  // namespace

int Brightness(Pixel p) {
    return static_cast<int>(((p >> 16 & 0xFF) * 299 + (p >> 8 & 0xFF) * 587 + (p & 0xFF) * 114) /
                            1000);
}

BitmapPtr OverWhite(QImage image) {
    const bool alpha = image.hasAlphaChannel();
    const QImage::Format format =
        alpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    if (image.format() != format) {
        image = std::move(image).convertToFormat(format);
    }
    if (image.isNull()) {
        return nullptr;
    }
    auto result = std::make_shared<Bitmap>();
    result->width = image.width();
    result->height = image.height();
    result->pixels.reserve(static_cast<size_t>(image.width()) *
                           static_cast<size_t>(image.height()));
    for (int y = 0; y < image.height(); ++y) {
        const Pixel* row = reinterpret_cast<const Pixel*>(image.constScanLine(y));
        result->pixels.insert(result->pixels.end(), row, row + image.width());
        // While the row is in the cache.
        for (Pixel* p = result->Row(y); p != result->Row(y + 1); ++p) {
            *p = alpha ? OverWhite(*p) : *p | kOpaque;
        }
    }
    return result;
}

QImage ImageOf(const BitmapPtr& bitmap) {
    if (!bitmap || bitmap->Empty()) {
        return {};
    }
    const auto letGo = [](void* held) { delete static_cast<BitmapPtr*>(held); };
    return QImage(reinterpret_cast<const uchar*>(bitmap->pixels.data()), bitmap->width,
                  bitmap->height, static_cast<qsizetype>(bitmap->width) * 4, QImage::Format_RGB32,
                  letGo, new BitmapPtr(bitmap));
}

BitmapPtr Smooth(const Bitmap& source, platform::Size size) {
    return OverWhite(View(source).scaled(size.width, size.height, Qt::IgnoreAspectRatio,
                                         Qt::SmoothTransformation));
}

BitmapPtr Nearest(const Bitmap& source, platform::Size size) {
    platform::Canvas canvas;
    canvas.Resize(size.width, size.height, 0);
    canvas.StretchBlt({0, 0, size.width, size.height}, source);
    return std::make_shared<Bitmap>(std::move(canvas.Writable()));
}

BitmapPtr TwoLevels(const Bitmap& source) {
    constexpr int kMiddle = 128;
    auto result = std::make_shared<Bitmap>(source.width, source.height);
    // Errors in sixteenths, with one place before and after the row.
    const auto places = static_cast<size_t>(source.width) + 2;
    std::vector<int> present(places), below(places);
    for (int y = 0; y < source.height; ++y) {
        const Pixel* from = source.Row(y);
        Pixel* to = result->Row(y);
        std::fill(below.begin(), below.end(), 0);
        for (size_t x = 1; x + 1 < places; ++x) {
            const int wanted = Brightness(*from++) + present[x] / 16;
            const bool white = wanted >= kMiddle;
            *to++ = white ? kWhite : kOpaque;
            const int error = wanted - (white ? 255 : 0);
            present[x + 1] += error * 7;
            below[x - 1] += error * 3;
            below[x] += error * 5;
            below[x + 1] += error;
        }
        std::swap(present, below);
    }
    return result;
}

}  // namespace imaging

#include "adapters/decoder/graphicsmagick.h"

#include <magick/api.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

#include "adapters/decoder/boxed_depth.h"
#include "adapters/decoder/over_white.h"
#include "adapters/decoder/pct_bitmap.h"

namespace decoder {

namespace {

using Bytes = std::span<const uint8_t>;
using sandbox::kPctHead;

struct Free {
    void operator()(ImageInfo* info) const { DestroyImageInfo(info); }
    void operator()(Image* image) const { DestroyImageList(image); }
};
using InfoPtr = std::unique_ptr<ImageInfo, Free>;
using ImagePtr = std::unique_ptr<Image, Free>;

/// What a call reports; it is not read.
struct Report {
    Report() { GetExceptionInfo(&info); }
    ~Report() { DestroyExceptionInfo(&info); }
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;
    ExceptionInfo info;
};

void StartMagick() {
    Report report;
    InitializeMagickEx(nullptr, MAGICK_OPT_NO_SIGNAL_HANDER, &report.info);
    constexpr magick_int64_t kMemory = magick_int64_t{1} << 30, kSide = 100000;
    const std::pair<ResourceType, magick_int64_t> limits[] = {
        {DiskResource, 0},      {MapResource, 0},        {MemoryResource, kMemory},
        {FileResource, 16},     {ThreadsResource, 1},    {PixelsResource, kMostPixels},
        {WidthResource, kSide}, {HeightResource, kSide},
    };
    for (const auto& [resource, limit] : limits) {
        SetMagickResourceLimit(resource, limit);
    }
}

/// `bits` of a colour part, which are stored as 8 or 16.
int BitsOf(int bits, bool grey, bool alpha) {
    return ((grey ? 1 : 3) + (alpha ? 1 : 0)) * (bits > 8 ? 16 : 8);
}

bool IsGrey(const Image& image) {
    if (std::string_view(image.magick) == "JXL" && image.depth > 8) {
        // The library does not say it of these; their pixels do.
        Report report;
        return IsGrayImage(&image, &report.info) != MagickFalse;
    }
    return image.is_grayscale != MagickFalse;
}

int BitsOf(const Image& image) {
    constexpr int kMostSmallPalette = 16;
    if (image.storage_class == PseudoClass && image.matte == MagickFalse) {
        return image.colors <= 2 ? 1 : image.colors <= kMostSmallPalette ? 4 : 8;
    }
    return image.depth == 1
               ? 1
               : BitsOf(static_cast<int>(image.depth), IsGrey(image), image.matte != MagickFalse);
}

std::optional<Picture> PixelsOf(const Image& image) {
    const int64_t width = static_cast<int64_t>(image.columns);
    const int64_t height = static_cast<int64_t>(image.rows);
    if (width <= 0 || height <= 0 || height > kMostPixels / width) {
        return std::nullopt;
    }
    Picture picture{{static_cast<int>(width), static_cast<int>(height)}, BitsOf(image), {}};
    picture.pixels.resize(static_cast<size_t>(width * height));
    uint32_t* out = picture.pixels.data();
    Report report;
    for (long y = 0; y < height; ++y) {
        const PixelPacket* row = AcquireImagePixels(&image, 0, y, image.columns, 1, &report.info);
        if (row == nullptr) {
            return std::nullopt;
        }
        for (int64_t x = 0; x < width; ++x, ++row) {
            const uint32_t alpha =
                image.matte != MagickFalse ? 255u - ScaleQuantumToChar(row->opacity) : 255u;
            *out++ = OverWhite(ScaleQuantumToChar(row->red), ScaleQuantumToChar(row->green),
                               ScaleQuantumToChar(row->blue), alpha);
        }
    }
    return picture;
}

}  // namespace

void WarmUpMagick() {
    static const bool started = (StartMagick(), true);
    static_cast<void>(started);
    // One pixel: the library reads its tables of kinds, colours and delegates with the first blob.
    uint8_t pcx[130] = {10, 5, 1, 8};
    pcx[65] = 1;
    pcx[66] = 2;
    DecodeByMagick("PCX", pcx);
}

std::optional<Picture> DecodeByMagick(const char* format, Bytes file) {
    const InfoPtr info(CloneImageInfo(nullptr));
    std::string(format).copy(info->magick, MaxTextExtent - 1);
    // With the name before the colon the kind is settled; what follows it would be a file.
    (std::string(format) + ":").copy(info->filename, MaxTextExtent - 1);
    // The first picture only. Of this kind the numbers choose among its sizes, of which the whole
    // screen's is wanted, as by default.
    info->subrange = std::string_view(format) == "PCD" ? 0 : 1;
    Report report;
    ImagePtr image(BlobToImage(info.get(), file.data(), file.size(), &report.info));
    if (!image) {
        return std::nullopt;
    }
    if (image->orientation > TopLeftOrientation) {
        image.reset(AutoOrientImage(image.get(), image->orientation, &report.info));
    }
    if (!image || (image->colorspace != RGBColorspace && !IsGrayColorspace(image->colorspace) &&
                   TransformColorspace(image.get(), RGBColorspace) == MagickFail)) {
        return std::nullopt;
    }
    std::optional<Picture> picture = PixelsOf(*image);
    const std::string_view kind = format;
    if (picture && (kind == "HEIC" || kind == "AVIF")) {
        const BoxedDepth stored = BoxedDepthOf(file);
        picture->bitsPerPixel =
            BitsOf(stored.bits, stored.bits > 0 && stored.grey, image->matte != MagickFalse);
    }
    return picture;
}

std::optional<Picture> DecodePct(Bytes file) {
    const std::string_view data(reinterpret_cast<const char*>(file.data()), file.size());
    std::vector<uint8_t> headed;
    if (!sandbox::IsPctAt(data, kPctHead) && sandbox::IsPctAt(data, 0)) {
        // As it lies on the clipboard, without the empty head of a file.
        headed.resize(kPctHead);
        headed.insert(headed.end(), file.begin(), file.end());
        file = headed;
    }
    const Bytes contents = file.subspan(std::min(kPctHead, file.size()));
    if (std::optional<Picture> bitmap = DecodePctBitmap(contents)) {
        return bitmap;
    }
    std::optional<Picture> picture = DecodeByMagick("PICT", file);
    if (const int bits = PctPaletteDepth(contents); picture && bits > 0) {
        picture->bitsPerPixel = bits;
    }
    return picture;
}

}  // namespace decoder

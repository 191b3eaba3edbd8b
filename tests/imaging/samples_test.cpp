// The toolkit's kinds in the variants that other programs write, compared with their source.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "imaging/imaging_support.h"

namespace {

struct Row {
    const char* file;
    const char* source;
    int largest = 0;  // bound of a colour part's distance
    double mean = 0;  // where the kind loses something: bound of the mean distance instead
};

constexpr int kRounded = 1, kAny = 255;
constexpr Row kRows[] = {
    {"tif_plain.tif", "card"},
    {"tif_lzw.tif", "card"},
    {"tif_lzw_predictor.tif", "card"},
    {"tif_deflate.tif", "card"},
    {"tif_packbits.tif", "card"},
    {"tif_jpeg.tif", "card", kAny, 7},
    {"tif_big_endian.tif", "card"},
    {"tif_tiled_plain.tif", "card"},
    {"tif_tiled_large.tif", "card"},
    {"tif_tiled_grey.tif", "grey"},
    {"tif_tiled_palette.tif", "pal256"},
    {"tif_tiled_mono.tif", "mono"},
    {"tif_tiled_fax4.tif", "mono"},
    {"tif_tiled_16bit.tif", "card", kRounded},
    {"tif_planes.tif", "card"},
    {"tif_strips.tif", "card"},
    {"tif_16bit.tif", "card", kRounded},
    {"tif_grey16.tif", "deepgrey", kRounded},
    {"tif_grey.tif", "grey"},
    {"tif_inks.tif", "card", 2},
    {"tif_palette.tif", "pal256"},
    {"tif_palette4.tif", "pal16"},
    {"tif_mono.tif", "mono"},
    {"tif_mono_white.tif", "mono"},
    {"tif_fax3.tif", "mono"},
    {"tif_fax4.tif", "mono"},
    {"tif_alpha.tif", "alpha", kRounded},
    {"bmp_24.bmp", "card"},
    {"bmp_8.bmp", "pal256"},
    {"bmp_4.bmp", "pal16"},
    {"bmp_1.bmp", "mono"},
    {"bmp_os2.bmp", "pal256"},
    {"bmp_runs8.bmp", "pal256"},
    {"bmp_runs4.bmp", "pal16"},
    // The toolkit's reader leaves the low three bits 0: white is 248.
    {"bmp_16.bmp", "fivebit", kRounded},
    {"bmp_32.bmp", "card"},
    {"bmp_topdown.bmp", "card"},
    {"jpg_plain.jpg", "card", kAny, 7},
    {"jpg_progressive.jpg", "card", kAny, 7},
    {"jpg_grey.jpg", "grey", kAny, 1.5},
    {"jpg_inks.jpg", "card", kAny, 7},
    {"png_plain.png", "card"},
    {"png_interlaced.png", "card"},
    {"png_grey.png", "grey"},
    {"png_mono.png", "mono"},
    {"png_16bit.png", "card", kRounded},
    {"png_grey16.png", "deepgrey", kRounded},
    {"png_palette4.png", "pal4"},
    {"png_palette16.png", "pal16"},
    {"png_palette256.png", "pal256"},
    {"png_alpha.png", "alpha", kRounded},
};

std::string PathOf(const std::string& name) {
    return std::string(PARAPICO_SAMPLES) + "/" + name;
}

TEST(ToolkitSamples, EverySampleShowsItsSource) {
    ImagingFolder folder;
    const auto control = folder.Control();
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.file);
        const std::string path = PathOf(std::string("toolkit/") + row.file);
        if (!control->Load(text::FromUtf8(path), {})) {
            ADD_FAILURE() << "not loaded";
            continue;
        }
        const platform::BitmapPtr picture = control->Picture();
        const QImage source(
            QString::fromStdString(PathOf(std::string("sources/") + row.source + ".ppm")));
        ASSERT_TRUE(picture && picture->width == source.width() &&
                    picture->height == source.height());
        int largest = 0;
        double sum = 0;
        for (int y = 0; y < picture->height; ++y) {
            for (int x = 0; x < picture->width; ++x) {
                const platform::Pixel wanted = 0xFF000000u | source.pixel(x, y);
                const int distance = Distance(picture->Row(y)[x], wanted);
                largest = std::max(largest, distance);
                sum += distance;
            }
        }
        const double mean = sum / (picture->width * picture->height);
        if (row.mean > 0) {
            EXPECT_LE(mean, row.mean);
        } else {
            EXPECT_LE(largest, row.largest) << "mean " << mean;
        }
    }
}

TEST(ToolkitSamples, EverySampleHasARow) {
    std::set<std::string> known;
    for (const Row& row : kRows) {
        known.insert(row.file);
    }
    for (const auto& entry : std::filesystem::directory_iterator(PathOf("toolkit"))) {
        EXPECT_TRUE(known.contains(entry.path().filename().string())) << entry.path();
    }
}

}  // namespace

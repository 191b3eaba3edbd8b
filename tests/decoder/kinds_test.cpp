// Every sample decodes to the picture that it was made from.
#include <gtest/gtest.h>

#include <set>

#include "decoder/decoder_support.h"

namespace {

using decoder::Picture;

/// `largest`: bound of any colour part's distance. Kinds that lose something have a bound of the
/// mean instead. `bits`: the depth that the file stores.
struct Row {
    const char* file;
    const char* source;
    int bits;
    int largest = 0;
    double mean = 0;
};

// Rounding: 16 to 8 bits, five to eight bits, alpha over white, inks to colours.
constexpr int kRounded = 1, kMixed = 2, kAny = 255;
// The writers of these halve the colours' resolution, and the card has hard edges.
constexpr double kHalfColours = 7, kFullColours = 1.5;

constexpr Row kRows[] = {
    {"psd_rgb_raw.psd", "card", 24},
    {"psd_rgb_packed.psd", "card", 24},
    {"psd_grey_raw.psd", "grey", 8},
    {"psd_grey_packed.psd", "grey", 8},
    {"psd_duotone_raw.psd", "grey", 8},
    {"psd_duotone_packed.psd", "grey", 8},
    {"psd_rgb16_raw.psd", "card", 48, kRounded},
    {"psd_rgb16_packed.psd", "card", 48, kRounded},
    {"psd_grey16_raw.psd", "deepgrey", 16, kRounded},
    {"psd_grey16_packed.psd", "deepgrey", 16, kRounded},
    {"psd_indexed_raw.psd", "pal256", 8},
    {"psd_indexed_packed.psd", "pal256", 8},
    {"psd_bitmap_raw.psd", "mono", 1},
    {"psd_bitmap_packed.psd", "mono", 1},
    {"psd_cmyk_raw.psd", "card", 24, kMixed},
    {"psd_cmyk_packed.psd", "card", 24, kMixed},
    {"psd_alpha_raw.psd", "alpha", 32, kRounded},
    {"psd_alpha_packed.psd", "alpha", 32, kRounded},
    {"psd_layers.psd", "card", 24},
    {"psd_layers_alpha.psd", "alpha", 32, kRounded},
    {"psd_selection.psd", "card", 32},
    {"psd_transparency.psd", "alpha", 32, kRounded},
    {"psd_im_rgb.psd", "card", 24},
    {"psd_im_grey.psd", "grey", 8},
    {"psd_im_raw.psd", "card", 24},
    {"psd_im_rgb16.psd", "card", 48, kRounded},
    {"psd_im_layers.psd", "card", 24},

    {"tga_rgb_raw.tga", "card", 24},
    {"tga_rgb_runs.tga", "card", 24},
    {"tga_grey_raw.tga", "grey", 8},
    {"tga_grey_runs.tga", "grey", 8},
    {"tga_palette_raw.tga", "pal256", 8},
    {"tga_palette_runs.tga", "pal256", 8},
    {"tga_palette32.tga", "pal256", 8},
    {"tga_alpha_raw.tga", "alpha", 32, kRounded},
    {"tga_alpha_runs.tga", "alpha", 32, kRounded},
    {"tga_alpha_unused.tga", "card", 32},
    {"tga_16_raw.tga", "fivebit", 16, kRounded},
    {"tga_16_runs.tga", "fivebit", 16, kRounded},
    {"tga_palette15.tga", "fivepal", 8, kRounded},
    {"tga_grey_alpha.tga", "opaquegreys", 16, kRounded},
    {"tga_origin273.tga", "card", 24},
    {"tga_topdown.tga", "card", 24},
    {"tga_rightleft.tga", "card", 24},
    {"tga_rightleft_up.tga", "card", 24},
    {"tga_note_footer.tga", "card", 24},
    {"tga_by_footer.dat", "card", 24},
    {"tga_netpbm_rgb.tga", "card", 24},
    {"tga_netpbm_cmap.tga", "pal16", 8},
    {"tga_netpbm_mono.tga", "grey", 8},
    {"tga_netpbm_alpha.tga", "alpha", 32, kRounded},
    {"tga_ffmpeg.tga", "card", 24},
    {"tga_gm.tga", "card", 24},
    {"tga_gm_rle.tga", "card", 24},

    {"pcx_mono.pcx", "mono", 1},
    {"pcx_planes16.pcx", "pal16", 4},
    {"pcx_packed16.pcx", "pal16", 4},
    {"pcx_palette256.pcx", "pal256", 8},
    {"pcx_rgb.pcx", "card", 24},
    {"pcx_netpbm_24.pcx", "card", 24},
    {"pcx_netpbm_256.pcx", "pal256", 8},
    {"pcx_netpbm_16.pcx", "pal16", 4},
    {"pcx_netpbm_packed.pcx", "pal16", 4},
    {"pcx_netpbm_4.pcx", "pal4", 4},
    {"pcx_netpbm_2.pcx", "mono", 1},
    // Its head has, by chance, what begins a pct.
    {"pcx_tall.pcx", "tall", 24},
    {"pcx_gm.pcx", "card", 24},
    {"pcx_gm_mono.pcx", "mono", 1},
    {"pcx_ffmpeg.pcx", "card", 24},

    {"ras_rgb_old.ras", "card", 24},
    {"ras_rgb_standard.ras", "card", 24},
    {"ras_rgb_runs.ras", "card", 24},
    {"ras_rgb_format.ras", "card", 24},
    {"ras_mono_old.ras", "mono", 1},
    {"ras_mono_standard.ras", "mono", 1},
    {"ras_mono_runs.ras", "mono", 1},
    {"ras_palette_old.ras", "pal256", 8},
    {"ras_palette_standard.ras", "pal256", 8},
    {"ras_palette_runs.ras", "pal256", 8},
    {"ras_grey.ras", "grey", 8},
    {"ras_netpbm.ras", "card", 24},
    {"ras_netpbm_rle.ras", "card", 24},
    {"ras_netpbm_grey.ras", "grey", 8},
    {"ras_gm.ras", "card", 24},
    {"ras_ffmpeg.ras", "card", 24},

    {"img_mono.img", "mono", 1},
    {"img_palette4.img", "pal4", 4},
    {"img_palette16.img", "pal16", 4},
    {"img_palette256.img", "pal256", 8},
    {"msp_version1.msp", "whitelines", 1},
    {"msp_version2.msp", "whitelines", 1},
    {"mac_bare.mac", "mac", 1},
    {"mac_binary.mac", "mac", 1},
    {"mac_netpbm.mac", "mac", 1},
    {"cal_gm.cal", "mono", 1},
    {"cal_im.cal", "mono", 1},

    {"wpg_mono.wpg", "mono", 1},
    {"wpg_palette4.wpg", "pal4", 4},
    {"wpg_palette16.wpg", "pal16", 4},
    {"wpg_palette256.wpg", "pal256", 8},
    {"pct_version1.pct", "mono", 1},
    {"pct_version1_bare.pct", "mono", 1},
    {"pct_version1_packed.pct", "mac", 1},
    {"pct_netpbm.pct", "pal256", 8},
    {"pct_gm.pct", "card", 24},
    // Its writer chooses a palette of its own.
    {"pct_gm_palette.pct", "pal256", 8, kAny, 1.5},
    {"pct_im.pct", "card", 24},
    // Its colours are those of a film scan: brighter ones than the screen's keep their room.
    {"pcd_gm.pcd", "photo", 24, kAny, 15},

    {"heic_card.heic", "evencard", 24, kAny, kHalfColours},
    {"heic_odd.heic", "card", 24, kAny, kHalfColours},
    {"heic_444.heic", "card", 24, kAny, kFullColours},
    {"heic_grey.heic", "grey", 8, kAny, kFullColours},
    {"heic_alpha.heic", "alpha", 32, kAny, kHalfColours},
    {"heic_10bit.heic", "card", 48, kAny, kHalfColours},
    {"heic_grid.heic", "tiles", 24, kAny, kFullColours},
    {"avif_card.avif", "evencard", 24, kAny, kHalfColours},
    {"avif_odd.avif", "card", 24, kAny, kHalfColours},
    {"avif_444.avif", "card", 24, kAny, kFullColours},
    {"avif_grey.avif", "grey", 8, kAny, kFullColours},
    {"avif_alpha.avif", "alpha", 32, kAny, kHalfColours},
    {"avif_10bit.avif", "evencard", 48, kAny, kHalfColours},
    {"avif_ffmpeg.avif", "evencard", 24, kAny, kFullColours},
    {"jxl_lossless.jxl", "card", 24},
    {"jxl_container.jxl", "card", 24},
    {"jxl_alpha.jxl", "alpha", 32, kRounded},
    {"jxl_grey.jxl", "grey", 8},
    {"jxl_16bit.jxl", "card", 48, kRounded},
    {"jxl_grey16.jxl", "deepgrey", 16, kRounded},
    {"jxl_lossy.jxl", "card", 24, kAny, 4},
    {"bmp_555.bmp", "fivebit", 16, kRounded},
    {"bmp_565.bmp", "fivesix", 16, kRounded},
    {"toolkit/bmp_16.bmp", "fivebit", 16, kRounded},
    {"toolkit/tif_tiled_plain.tif", "card", 24},
    {"toolkit/tif_tiled_large.tif", "card", 24},
    {"toolkit/tif_tiled_16bit.tif", "card", 48, kRounded},
    {"toolkit/tif_tiled_grey.tif", "grey", 8},
    {"toolkit/tif_tiled_palette.tif", "pal256", 8},
    {"toolkit/tif_tiled_mono.tif", "mono", 1},
    {"toolkit/tif_tiled_fax4.tif", "mono", 1},
    {"toolkit/tif_grey16.tif", "deepgrey", 16, kRounded},
    // In these the picture's own note says how to turn it, never that of a camera beside it.
    {"heic_camera_note.heic", "card", 24, kAny, kHalfColours},
    {"avif_camera_note.avif", "card", 24, kAny, kHalfColours},
    // Turned upright, and once only.
    {"heic_turned.heic", "turnedcard", 24, kAny, kFullColours},
    {"avif_turned.avif", "turnedcard", 24, kAny, kFullColours},
    {"jxl_turned.jxl", "turnedcard", 24, kAny, 2},
    {"jxl_turned_pixels.jxl", "turnedcard", 24, kAny, 2},
};

/// Drawings have a test of their own; these are pictures inside.
constexpr Row kDrawn[] = {
    {"eps_gm.eps", "card", 24},
    {"eps_gm_preview.eps", "card", 24},
    {"eps_netpbm.eps", "card", 24},
};

void ExpectPicture(const Row& row) {
    SCOPED_TRACE(row.file);
    const std::optional<Picture> picture =
        decoder::Decode(KindOfSample(row.file), Sample(row.file), {});
    ASSERT_TRUE(picture);
    const Picture source = Source(row.source);
    ASSERT_EQ(picture->size, source.size);
    const Difference difference = Between(*picture, source);
    if (row.mean > 0) {
        EXPECT_LE(difference.mean, row.mean);
    } else {
        EXPECT_LE(difference.largest, row.largest) << "mean " << difference.mean;
    }
    EXPECT_EQ(picture->bitsPerPixel, row.bits);
}

TEST(Kinds, EverySampleShowsItsSource) {
    for (const Row& row : kRows) {
        ExpectPicture(row);
    }
    for (const Row& row : kDrawn) {
        ExpectPicture(row);
    }
}

/// A sample that no row speaks of would be decoded by no test.
TEST(Kinds, EverySampleHasARow) {
    std::set<std::string> known;
    for (const Row& row : kRows) {
        known.insert(row.file);
    }
    for (const std::string& name : SampleNames()) {
        EXPECT_TRUE(known.contains(name) || name.starts_with("eps_")) << name;
    }
}

/// Lines run and follow one another in any of four directions each: 0 to the right, 90 up.
TEST(Kinds, ScannedDrawingsRunInEightDirections) {
    const FileBytes file = Sample("cal_gm.cal");
    const Picture source = Source("mono");
    const int width = source.size.width, height = source.size.height;
    const auto across = [](int degrees) { return degrees == 0 ? 1 : degrees == 180 ? -1 : 0; };
    const auto down = [](int degrees) { return degrees == 270 ? 1 : degrees == 90 ? -1 : 0; };
    for (const auto& [line, lines] : {std::pair{0, 270},
                                      {180, 270},
                                      {180, 90},
                                      {0, 90},
                                      {270, 0},
                                      {270, 180},
                                      {90, 180},
                                      {90, 0}}) {
        SCOPED_TRACE(std::to_string(line) + "," + std::to_string(lines));
        std::string changed(file.begin(), file.end());
        const auto three = [](int value) {
            return (value < 10 ? "00" : value < 100 ? "0" : "") + std::to_string(value);
        };
        const size_t at = changed.find("rorient:");
        ASSERT_NE(at, std::string::npos);
        changed.replace(at, 16, "rorient: " + three(line) + "," + three(lines));
        const auto picture =
            decoder::Decode(sandbox::Kind::Cal,
                            {reinterpret_cast<const uint8_t*>(changed.data()), changed.size()}, {});
        ASSERT_TRUE(picture);
        const bool sideways = across(line) == 0;
        ASSERT_EQ(picture->size.width, sideways ? height : width);
        ASSERT_EQ(picture->size.height, sideways ? width : height);
        // The first pixel stands in the corner that both directions come from.
        const int startX = across(line) + across(lines) > 0 ? 0 : picture->size.width - 1;
        const int startY = down(line) + down(lines) > 0 ? 0 : picture->size.height - 1;
        int wrong = 0;
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                const int toX = startX + x * across(line) + y * across(lines);
                const int toY = startY + x * down(line) + y * down(lines);
                wrong += picture->pixels[static_cast<size_t>(toY * picture->size.width + toX)] !=
                         source.pixels[static_cast<size_t>(y * width + x)];
            }
        }
        EXPECT_EQ(wrong, 0);
    }
}

TEST(Kinds, LossyPicturesHaveTheirCorners) {
    constexpr uint32_t kCorners[] = {0xFFFF0000u, 0xFF00FF00u, 0xFF0000FFu, 0xFF000000u};
    for (const char* file : {"heic_odd.heic", "avif_odd.avif", "jxl_lossy.jxl", "pcd_gm.pcd"}) {
        SCOPED_TRACE(file);
        const auto picture = decoder::Decode(KindOfSample(file), Sample(file), {});
        ASSERT_TRUE(picture);
        const int width = picture->size.width, height = picture->size.height;
        for (int i = 0; i < 4; ++i) {
            const int x = i % 2 == 0 ? width / 15 : width - 1 - width / 15;
            const int y = i < 2 ? height / 10 : height - 1 - height / 10;
            const uint32_t pixel = picture->pixels[static_cast<size_t>(y * width + x)];
            for (const int shift : {0, 8, 16}) {
                EXPECT_NEAR(static_cast<int>(pixel >> shift & 0xFF),
                            static_cast<int>(kCorners[i] >> shift & 0xFF), 40)
                    << i << " " << shift;
            }
        }
    }
}

}  // namespace

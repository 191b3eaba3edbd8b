// Filters of the imaging control.
#include "adapters/imaging/filters.h"

#include <gtest/gtest.h>

#include "imaging/imaging_support.h"

namespace {

using platform::Bitmap;
using platform::BitmapPtr;
using platform::Pixel;
using Pixels = std::vector<Pixel>;

constexpr Pixel kBlack = 0xFF000000u, kWhite = 0xFFFFFFFFu;

Bitmap Of(int width, int height, const Pixels& pixels) {
    Bitmap bitmap(width, height);
    bitmap.pixels = pixels;
    return bitmap;
}

platform::Scale Plain(const Bitmap& bitmap) {
    const platform::Size size{bitmap.width, bitmap.height};
    return {size, size};
}

TEST(Filters, GreysHaveTheBrightnessOfTheColours) {
    const Bitmap source = Of(5, 1, {0xFFFF0000u, 0xFF00FF00u, 0xFF0000FFu, kWhite, kBlack});
    // 29.9, 58.7 and 11.4 % of 255, cut.
    EXPECT_EQ(imaging::Gray(source)->pixels,
              (Pixels{0xFF4C4C4Cu, 0xFF959595u, 0xFF1D1D1Du, kWhite, kBlack}));
}

TEST(Filters, MirrorExchangesLeftAndRight) {
    const Bitmap odd = Of(3, 2, {1, 2, 3, 4, 5, 6});
    EXPECT_EQ(imaging::Mirrored(odd)->pixels, (Pixels{3, 2, 1, 6, 5, 4}));
    EXPECT_EQ(imaging::Mirrored(*imaging::Mirrored(odd))->pixels, odd.pixels);
}

TEST(Filters, FlipExchangesTopAndBottom) {
    const Bitmap odd = Of(2, 3, {1, 2, 3, 4, 5, 6});
    EXPECT_EQ(imaging::Flipped(odd)->pixels, (Pixels{5, 6, 3, 4, 1, 2}));
}

TEST(Filters, InvertedColoursAreComplements) {
    EXPECT_EQ(imaging::Inverted(Of(2, 1, {0xFF102030u, kWhite}))->pixels,
              (Pixels{0xFFEFDFCFu, kBlack}));
}

TEST(Filters, EdgesAreBrightWhereColoursChange) {
    // Red parts 0, 0, 10, 10 in every row: across an edge the Sobel sum is 4 × 10.
    const Pixel low = 0xFF000000u, high = 0xFF0A0000u, edge = 0xFF280000u;
    const Bitmap step = Of(4, 2, {low, low, high, high, low, low, high, high});
    EXPECT_EQ(imaging::Edges(step, 8)->pixels,
              (Pixels{low, edge, edge, low, low, edge, edge, low}));
    EXPECT_EQ(imaging::Edges(step, 4)->pixels[1], 0xFF140000u);
    EXPECT_EQ(imaging::Edges(Of(2, 1, {kBlack, kWhite}), 8)->pixels, (Pixels{kWhite, kWhite}))
        << "no more than full";
    EXPECT_EQ(imaging::Edges(Of(1, 1, {kWhite}), 8)->pixels, Pixels{kBlack});
}

TEST(Filters, ReliefIsLitFromItsDirection) {
    // Middle pixel of three in a column: neighbours differ by 100; 70 % of it.
    const Pixel dark = 0xFF000000u, light = 0xFF640000u;
    const Bitmap column = Of(1, 3, {light, dark, dark});
    EXPECT_EQ(imaging::Embossed(column, 0, 700)->pixels[1], 0xFF808080u + 70 * 0x10000u);
    EXPECT_EQ(imaging::Embossed(column, 5, 700)->pixels[1], 0xFF808080u - 70 * 0x10000u);
    EXPECT_EQ(imaging::Embossed(column, 3, 700)->pixels[1], 0xFF808080u);
    EXPECT_EQ(imaging::Embossed(Of(1, 1, {kWhite}), 0, 700)->pixels, Pixels{0xFF808080u});
}

TEST(Filters, MosaicSquaresHaveTheMeanOfWhatTheyCover) {
    // Blocks of 2 on 3 × 3: one whole, two halves, a corner.
    const Bitmap source = Of(3, 3,
                             {0xFF000000u, 0xFF0000FFu, 0xFF100000u, 0xFF00FF00u, 0xFFFF0000u,
                              0xFF210000u, 0xFF000003u, 0xFF000004u, 0xFF123456u});
    const Pixel whole = 0xFF404040u;  // 255 / 4 = 63.75
    const Pixel right = 0xFF190000u;  // (16 + 33) / 2 = 24.5
    const Pixel below = 0xFF000004u;  // (3 + 4) / 2 = 3.5
    EXPECT_EQ(imaging::Mosaic(source, 2, Plain(source))->pixels,
              (Pixels{whole, whole, right, whole, whole, right, below, below, 0xFF123456u}));
}

TEST(Filters, MosaicOfOnePixelAndOfMoreThanThePicture) {
    const Bitmap source = Of(2, 2, {kBlack, kWhite, kWhite, kBlack});
    for (const int block : {1, 0, -7}) {
        EXPECT_EQ(imaging::Mosaic(source, block, Plain(source))->pixels, source.pixels) << block;
    }
    for (const int block : {2, 3, 2147483647}) {
        EXPECT_EQ(imaging::Mosaic(source, block, Plain(source))->pixels, Pixels(4, 0xFF808080u))
            << block;
    }
}

TEST(Filters, OfNothingAreNothing) {
    const Bitmap none;
    EXPECT_TRUE(imaging::Gray(none)->Empty());
    EXPECT_TRUE(imaging::Flipped(none)->Empty());
    EXPECT_TRUE(imaging::Edges(none, 8)->Empty());
    EXPECT_TRUE(imaging::Embossed(none, 0, 700)->Empty());
    EXPECT_TRUE(imaging::Mirrored(none)->Empty());
    EXPECT_TRUE(imaging::Mosaic(none, 12, Plain(none))->Empty());
}

class FilteredControl : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(control_->Load(folder_.Put("a.jpg", Encoded(Quarters(400, 200), "jpg", 95)),
                                   [](platform::Size) {
                                       return platform::Size{100, 50};
                                   }));
        control_->Resize(100, 50, 0);
    }
    Pixel At(int x, int y) { return control_->Picture()->Row(y)[x]; }

    ImagingFolder folder_;
    std::unique_ptr<platform::ImagingControl> control_ = folder_.Control();
};

TEST_F(FilteredControl, WorksOnTheFittedPictureAndLeavesCopiesAlone) {
    const auto twin = folder_.Control();
    twin->CopyFrom(*control_);
    control_->Reverse();
    EXPECT_EQ(control_->HeldSize(), (platform::Size{100, 50}));
    EXPECT_LE(Distance(At(10, 10), 0xFF00FF00u), 12) << "green was at the top right";
    EXPECT_LE(Distance(At(90, 10), 0xFFFF0000u), 12);
    EXPECT_LE(Distance(twin->Picture()->Row(10)[10], 0xFFFF0000u), 12);
    control_->GrayScale();
    EXPECT_LE(Distance(At(90, 10), 0xFF4C4C4Cu), 12);
    EXPECT_EQ(control_->BitsPerPixel(), 24);
    control_->CopyFrom(*twin);
    EXPECT_LE(Distance(At(10, 10), 0xFFFF0000u), 12);
}

TEST_F(FilteredControl, MosaicOfTwoLevelsHasAllLevels) {
    control_->SetColorResolution(1, 1, 1, 0);
    control_->GrayScale();
    control_->Reverse();
    EXPECT_EQ(control_->BitsPerPixel(), 1);
    control_->Mosaic(25);
    EXPECT_EQ(control_->BitsPerPixel(), 24);
    const Pixel green = At(0, 0);
    EXPECT_EQ(green, At(24, 24));
    EXPECT_LE(Distance(green, 0xFF959595u), 16) << "the dots' mean is the brightness";
}

TEST_F(FilteredControl, OfNothingDoNothing) {
    control_->Clear();
    control_->GrayScale();
    control_->Reverse();
    control_->Mosaic(12);
    EXPECT_FALSE(control_->Holds());
    EXPECT_EQ(control_->Picture(), nullptr);
}

TEST(Filters, ReachAndBlocksGrowWithThePicture) {
    const Bitmap twice = Of(4, 1, {kBlack, kBlack, kWhite, kWhite});
    // Neighbours two pixels away: 4 × 255 at both inner pixels.
    EXPECT_EQ(imaging::Edges(twice, 8, 2)->pixels, (Pixels{kWhite, kWhite, kWhite, kWhite}));
    EXPECT_EQ(imaging::Edges(twice, 8, 1)->pixels, (Pixels{kBlack, kWhite, kWhite, kBlack}));
    // Blocks of one unit, 3 units on 4 pixels: pixel 0, pixels 1 and 2, pixel 3.
    const Bitmap row = Of(4, 1, {0xFF000010u, 0xFF000020u, 0xFF000040u, 0xFF000080u});
    EXPECT_EQ(imaging::Mosaic(row, 1, {{3, 1}, {4, 1}})->pixels,
              (Pixels{0xFF000010u, 0xFF000030u, 0xFF000030u, 0xFF000080u}));
}

}  // namespace

// Canvases whose units are no pixels.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <random>

#include "platform/canvas.h"

namespace {

using platform::Bitmap;
using platform::Canvas;
using platform::Color;
using platform::Pixel;
using platform::Rect;
using platform::Scale;
using platform::Size;

constexpr Color kRed = platform::Rgb(255, 0, 0);
constexpr Color kBlack = 0;

/// Double, four thirds, below one, and other in both directions.
constexpr Scale kScales[] = {
    {{24, 18}, {48, 36}}, {{24, 18}, {32, 24}}, {{24, 18}, {17, 13}}, {{25, 18}, {63, 44}}};

Canvas Make(const Scale& scale, Color fill = kBlack) {
    Canvas canvas;
    canvas.Resize(scale, fill);
    canvas.TakeChanged();
    return canvas;
}

/// Nearest edge of pixels by the rule, halves upwards.
int Edge(int unit, int units, int pixels) {
    return static_cast<int>(std::floor(double(unit) * pixels / units + 0.5));
}

Bitmap Numbered(int width, int height) {
    Bitmap bitmap(width, height);
    for (size_t i = 0; i < bitmap.pixels.size(); ++i) {
        bitmap.pixels[i] = 0xFF000000u + static_cast<Pixel>(i) + 1;
    }
    return bitmap;
}

TEST(CanvasScale, EdgesGoToTheNearestPixel) {
    const Scale scale{{1921, 1080}, {1366, 768}};
    EXPECT_EQ(scale.X(0), 0);
    EXPECT_EQ(scale.X(1), 1);    // 0.711
    EXPECT_EQ(scale.X(2), 1);    // 1.42
    EXPECT_EQ(scale.X(-2), -1);  // -1.42
    EXPECT_EQ(scale.X(1921), 1366);
    EXPECT_EQ(scale.Y(1080), 768);
    EXPECT_EQ((Scale{{4, 4}, {6, 6}}).X(1), 2) << "half a pixel goes up";
    EXPECT_EQ((Scale{{4, 4}, {6, 6}}).X(-1), -1) << "also below 0";
    EXPECT_EQ(scale.ToPixels(Rect{1, 2, 2, 4}), (Rect{1, 1, 1, 3}));
    EXPECT_EQ(scale.ToPixels(Size{1, 1}), (Size{1, 1}));
    EXPECT_EQ((Scale{{9, 9}, {1, 1}}).ToPixels(Size{3, 3}), (Size{1, 1})) << "never none";
    EXPECT_EQ((Scale{{9, 9}, {9, 9}}).X(1 << 30), 1 << 30);
    EXPECT_DOUBLE_EQ((Scale{{1920, 1080}, {2560, 1440}}).Factor(), 4.0 / 3);
    EXPECT_DOUBLE_EQ(Scale().Factor(), 1);
}

TEST(CanvasScale, FilledRectanglesMeetWithoutSeamsAndLeftovers) {
    for (const Scale& scale : kScales) {
        std::mt19937 chance(7);
        Canvas canvas = Make(scale);
        Canvas units = Make({scale.units, scale.units});
        for (int i = 0; i < 200; ++i) {
            const Rect area{static_cast<int>(chance() % 30) - 4,
                            static_cast<int>(chance() % 24) - 4, static_cast<int>(chance() % 12),
                            static_cast<int>(chance() % 12)};
            const Color color = chance() & 0xFFFFFF;
            canvas.FillRect(area, color);
            units.FillRect(area, color);
        }
        for (int y = 0; y < scale.units.height; ++y) {
            for (int x = 0; x < scale.units.width; ++x) {
                for (int py = Edge(y, scale.units.height, scale.pixels.height);
                     py < Edge(y + 1, scale.units.height, scale.pixels.height); ++py) {
                    for (int px = Edge(x, scale.units.width, scale.pixels.width);
                         px < Edge(x + 1, scale.units.width, scale.pixels.width); ++px) {
                        ASSERT_EQ(canvas.Pixels().Row(py)[px], units.Pixels().Row(y)[x])
                            << px << ' ' << py << " of " << scale.pixels.width;
                    }
                }
            }
        }
    }
}

TEST(CanvasScale, WhatIsCopiedPieceByPieceIsTheWhole) {
    for (const Scale& scale : kScales) {
        Canvas source = Make(scale);
        source.Lay({0, 0, 99, 99}, Numbered(scale.pixels.width, scale.pixels.height),
                   {0, 0, scale.pixels.width, scale.pixels.height});
        Canvas canvas = Make(scale, kRed);
        for (int y = 0; y < scale.units.height; ++y) {
            for (int x = 0; x < scale.units.width; x += 3) {
                canvas.BitBlt(x, y, 3, 1, &source.Pixels(), x, y);
            }
        }
        EXPECT_EQ(canvas.Pixels().pixels, source.Pixels().pixels) << scale.pixels.width;
        canvas.FillRect({3, 4, 5, 6}, kRed);
        canvas.BitBlt(3, 4, 5, 6, &source.Pixels(), 3, 4);
        EXPECT_EQ(canvas.Pixels().pixels, source.Pixels().pixels) << "a place comes back exactly";
    }
}

TEST(CanvasScale, APictureCoversItsUnitsWhereverItStands) {
    // 5 units are 6.67 pixels, so 7: at 0 they cover 7, at 1 (pixel 1 to 8) 7, at 2 (3 to 9) 6.
    const Scale scale{{24, 18}, {32, 24}};
    const Bitmap picture = Numbered(7, 7);
    for (int x = -3; x < 24; ++x) {
        Canvas canvas = Make(scale, kRed);
        const Rect whole = scale.ToPixels(Rect{x, 2, 5, 5});
        EXPECT_EQ(whole.width, Edge(x + 5, 3, 4) - Edge(x, 3, 4));
        // In two parts that meet inside it.
        canvas.Lay({whole.x, whole.y, 3, 24}, picture, whole);
        canvas.Lay({whole.x + 3, whole.y, 24, 24}, picture, whole);
        for (int py = 0; py < 24; ++py) {
            for (int px = 0; px < 32; ++px) {
                const bool inside = px >= whole.x && px < whole.x + whole.width && py >= whole.y &&
                                    py < whole.y + whole.height;
                const Pixel expected =
                    inside ? picture.Row(std::min(py - whole.y, 6))[std::min(px - whole.x, 6)]
                           : platform::ToPixel(kRed);
                ASSERT_EQ(canvas.Pixels().Row(py)[px], expected) << x << ": " << px << ' ' << py;
            }
        }
    }
    // One pixel short: the last row and column come twice.
    Canvas canvas = Make(scale, kRed);
    canvas.Lay({0, 0, 32, 24}, Numbered(2, 2), {1, 1, 3, 3});
    EXPECT_EQ(canvas.Pixels().Row(1)[3], 0xFF000002u);
    EXPECT_EQ(canvas.Pixels().Row(3)[1], 0xFF000003u);
    EXPECT_EQ(canvas.Pixels().Row(3)[3], 0xFF000004u);
    EXPECT_EQ(canvas.Pixels().Row(4)[3], platform::ToPixel(kRed));
}

TEST(CanvasScale, APictureOfOtherDensityIsStretched) {
    Canvas canvas = Make({{4, 4}, {8, 8}}, kRed);
    canvas.Lay({0, 0, 8, 8}, Numbered(2, 2), {0, 0, 8, 8});
    EXPECT_EQ(canvas.Pixels().Row(3)[3], 0xFF000001u);
    EXPECT_EQ(canvas.Pixels().Row(4)[3], 0xFF000003u);
    EXPECT_EQ(canvas.Pixels().Row(7)[7], 0xFF000004u);
    // A canvas of pixels shows an enlarged picture in its size, the ground beside it.
    Canvas plain = Make({{3, 2}, {3, 2}});
    plain.Cover(kRed, std::make_shared<const Bitmap>(Numbered(4, 4)), {2, 2});
    EXPECT_EQ(plain.Pixels().pixels,
              (std::vector<Pixel>{0xFF000001u, 0xFF000003u, platform::ToPixel(kRed), 0xFF000009u,
                                  0xFF00000Bu, platform::ToPixel(kRed)}));
}

TEST(CanvasScale, LinesAndPointsAreUnits) {
    Canvas canvas = Make({{4, 4}, {8, 8}});
    canvas.Line(0, 0, 3, 3, kRed);
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            EXPECT_EQ(canvas.Pixels().Row(y)[x] == platform::ToPixel(kRed), x / 2 == y / 2);
        }
    }
    EXPECT_EQ(canvas.Point(3, 3), kRed);
    EXPECT_EQ(canvas.Point(3, 2), kBlack);
    EXPECT_EQ(canvas.Point(4, 4), platform::Rgb(255, 255, 255));
    EXPECT_EQ(canvas.TakeChanged(), (Rect{0, 0, 8, 8}));
    canvas.FillRect({1, 2, 1, 1}, kRed);
    EXPECT_EQ(canvas.TakeChanged(), (Rect{2, 4, 2, 2})) << "changes are pixels";
    Canvas small = Make({{9, 9}, {2, 2}}, kRed);
    EXPECT_EQ(small.Point(8, 8), kRed);
}

TEST(CanvasScale, ContentStaysWhenTheScaleChanges) {
    Canvas canvas = Make({{4, 2}, {4, 2}});
    canvas.FillRect({1, 1, 2, 1}, kRed);
    canvas.Resize({{4, 2}, {8, 4}}, kBlack);
    Canvas expected = Make({{4, 2}, {8, 4}});
    expected.FillRect({1, 1, 2, 1}, kRed);
    EXPECT_EQ(canvas.Pixels().pixels, expected.Pixels().pixels);
    EXPECT_EQ(canvas.Width(), 4);
    canvas.Resize({{4, 2}, {4, 2}}, kBlack);
    EXPECT_EQ(canvas.Point(2, 1), kRed);
    EXPECT_EQ(canvas.Point(3, 1), kBlack);
}

}  // namespace

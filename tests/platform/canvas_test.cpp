#include "platform/canvas.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <memory>
#include <random>

namespace {

using platform::Bitmap;
using platform::Canvas;
using platform::Color;
using platform::Pixel;
using platform::RasterOp;
using platform::Rect;

constexpr Color kRed = platform::Rgb(255, 0, 0);
constexpr Color kWhite = platform::Rgb(255, 255, 255);
constexpr Color kBlack = 0;

Canvas MakeCanvas(int width, int height, Color fill = kBlack) {
    Canvas canvas;
    canvas.Resize(width, height, fill);
    canvas.TakeChanged();
    return canvas;
}

/// Every pixel different from all others.
Bitmap Numbered(int width, int height) {
    Bitmap bitmap(width, height);
    for (size_t i = 0; i < bitmap.pixels.size(); ++i) {
        bitmap.pixels[i] = 0xFF000000u + static_cast<Pixel>(i) + 1;
    }
    return bitmap;
}

TEST(Colors, SwapRedAndBlue) {
    EXPECT_EQ(platform::ToPixel(0x00112233), 0xFF332211u);
    EXPECT_EQ(platform::ToColor(0xFF332211u), 0x00112233u);
    EXPECT_EQ(platform::ToPixel(kRed), 0xFFFF0000u);
}

TEST(Rects, IntersectAndUnite) {
    const Rect a{0, 0, 10, 10}, b{5, 6, 10, 10};
    EXPECT_EQ(platform::Intersection(a, b), (Rect{5, 6, 5, 4}));
    EXPECT_EQ(platform::Union(a, b), (Rect{0, 0, 15, 16}));
    EXPECT_TRUE(platform::Intersection(a, {10, 0, 5, 5}).Empty());
    EXPECT_TRUE(platform::Intersection(a, {2, 2, -1, 5}).Empty());
    EXPECT_EQ(platform::Union(a, {50, 50, 0, 9}), a);
    EXPECT_EQ(platform::Union({}, b), b);
    EXPECT_EQ(platform::Intersection({-5, -5, INT_MAX, INT_MAX}, a), a);
}

TEST(CanvasResize, KeepsWhatFits) {
    Canvas canvas = MakeCanvas(3, 3, kRed);
    canvas.FillRect({1, 1, 1, 1}, kWhite);
    canvas.Resize(2, 4, kBlack);
    EXPECT_EQ(canvas.Width(), 2);
    EXPECT_EQ(canvas.Height(), 4);
    EXPECT_EQ(canvas.Point(0, 0), kRed);
    EXPECT_EQ(canvas.Point(1, 1), kWhite);
    EXPECT_EQ(canvas.Point(1, 3), kBlack);
    EXPECT_EQ(canvas.TakeChanged(), (Rect{0, 0, 2, 4}));
    canvas.Resize(-1, 5, kBlack);
    EXPECT_TRUE(canvas.Pixels().Empty());
}

TEST(CanvasCover, LaysThePictureOverTheColour) {
    Canvas canvas = MakeCanvas(3, 2, kRed);
    canvas.FillRect({0, 0, 3, 2}, kWhite);
    const auto picture = std::make_shared<const Bitmap>(2, 1, platform::ToPixel(kBlack));
    canvas.TakeChanged();
    canvas.Cover(kRed, picture);
    EXPECT_EQ(canvas.TakeChanged(), (Rect{0, 0, 3, 2}));
    const Pixel black = platform::ToPixel(kBlack), red = platform::ToPixel(kRed);
    EXPECT_EQ(canvas.Pixels().pixels, (std::vector<Pixel>{black, black, red, red, red, red}));
    // A larger one is cut off.
    canvas.Cover(kRed, std::make_shared<const Bitmap>(9, 9, platform::ToPixel(kWhite)));
    EXPECT_EQ(canvas.Pixels().pixels, std::vector<Pixel>(6, platform::ToPixel(kWhite)));
}

TEST(CanvasCover, IsDrawnWhenItIsLookedAt) {
    Canvas canvas = MakeCanvas(2, 2, kRed);
    const auto picture = std::make_shared<const Bitmap>(1, 1, platform::ToPixel(kWhite));
    canvas.Cover(kBlack, picture);
    EXPECT_EQ(picture.use_count(), 2) << "kept until then";
    EXPECT_EQ(canvas.Point(0, 0), kWhite);
    EXPECT_EQ(picture.use_count(), 1);
    // The last one counts.
    canvas.Cover(kBlack, picture);
    canvas.Fill(kRed);
    EXPECT_EQ(picture.use_count(), 1);
    EXPECT_EQ(canvas.Point(0, 0), kRed);
}

TEST(CanvasCover, LiesUnderWhatIsDrawnAfterIt) {
    const auto picture = std::make_shared<const Bitmap>(2, 2, platform::ToPixel(kWhite));
    const Bitmap dot(1, 1, platform::ToPixel(kBlack));
    const Bitmap quarter(2, 2, platform::ToPixel(kBlack));
    const std::vector<std::function<void(Canvas&)>> drawings = {
        [](Canvas& canvas) {
            canvas.FillRect({0, 0, 1, 1}, kBlack);
        },
        [](Canvas& canvas) { canvas.Line(0, 0, 0, 0, kBlack); },
        [&](Canvas& canvas) { canvas.BitBlt(0, 0, 1, 1, &dot, 0, 0); },
        [&](Canvas& canvas) {
            canvas.StretchBlt({0, 0, 1, 1}, quarter);
        },
        [](Canvas& canvas) { canvas.Writable().Row(0)[0] = platform::ToPixel(kBlack); }};
    for (const auto& draw : drawings) {
        Canvas canvas = MakeCanvas(3, 2, kBlack);
        canvas.Cover(kRed, picture);
        draw(canvas);
        const Pixel black = platform::ToPixel(kBlack), white = platform::ToPixel(kWhite);
        const Pixel red = platform::ToPixel(kRed);
        EXPECT_EQ(canvas.Pixels().pixels,
                  (std::vector<Pixel>{black, white, red, white, white, red}));
    }
}

TEST(CanvasCover, StaysWhereItFitsAnotherSize) {
    Canvas canvas = MakeCanvas(2, 1, kRed);
    canvas.Cover(kRed, std::make_shared<const Bitmap>(1, 1, platform::ToPixel(kWhite)));
    canvas.Resize(3, 1, kRed);
    EXPECT_EQ(canvas.Point(0, 0), kWhite);
    EXPECT_EQ(canvas.Point(2, 0), kRed);
    // A plain colour is still the old one where the old canvas was.
    canvas.Fill(kRed);
    canvas.Resize(4, 1, kBlack);
    EXPECT_EQ(canvas.Point(2, 0), kRed);
    EXPECT_EQ(canvas.Point(3, 0), kBlack);
}

TEST(CanvasPoint, IsWhiteOutside) {
    const Canvas canvas = MakeCanvas(2, 2);
    EXPECT_EQ(canvas.Point(0, 0), kBlack);
    EXPECT_EQ(canvas.Point(-1, 0), kWhite);
    EXPECT_EQ(canvas.Point(0, 2), kWhite);
}

TEST(CanvasLine, DrawsBothEndsAndThePixelsBetween) {
    Canvas canvas = MakeCanvas(5, 5, kWhite);
    canvas.Line(0, 0, 4, 4, kRed);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(canvas.Point(i, i), kRed);
    }
    EXPECT_EQ(canvas.Point(1, 0), kWhite);
    canvas.Line(4, 2, 0, 2, kBlack);
    for (int x = 0; x < 5; ++x) {
        EXPECT_EQ(canvas.Point(x, 2), kBlack);
    }
    canvas.Line(3, 1, 3, 1, kBlack);
    EXPECT_EQ(canvas.Point(3, 1), kBlack);
}

TEST(CanvasLine, IsClippedWithoutLosingItsSlope) {
    Canvas canvas = MakeCanvas(4, 4, kWhite);
    canvas.Line(-1000000, -1000000, 1000000, 1000000, kRed);
    EXPECT_EQ(canvas.Point(0, 0), kRed);
    EXPECT_EQ(canvas.Point(3, 3), kRed);
    EXPECT_EQ(canvas.TakeChanged(), (Rect{0, 0, 4, 4}));
    canvas.Line(INT_MIN, 1, INT_MAX, 1, kBlack);
    EXPECT_EQ(canvas.Point(0, 1), kBlack);
    EXPECT_EQ(canvas.TakeChanged(), (Rect{0, 1, 4, 1}));
    canvas.Line(0, -5, 3, -5, kBlack);
    EXPECT_TRUE(canvas.TakeChanged().Empty());
}

TEST(CanvasBitBlt, LeavesOutWhatLiesOutsideEitherBuffer) {
    const Bitmap source = Numbered(7, 5);
    std::mt19937 random(4);
    std::uniform_int_distribution<int> place(-9, 9), size(-2, 12);
    for (int i = 0; i < 20000; ++i) {
        Canvas canvas = MakeCanvas(6, 8);
        const int x = place(random), y = place(random), sx = place(random), sy = place(random);
        const int width = size(random), height = size(random);
        canvas.BitBlt(x, y, width, height, &source, sx, sy);
        for (int row = 0; row < 8; ++row) {
            for (int column = 0; column < 6; ++column) {
                const int dx = column - x, dy = row - y;
                const bool inArea = dx >= 0 && dx < width && dy >= 0 && dy < height;
                const bool inSource = dx + sx >= 0 && dx + sx < 7 && dy + sy >= 0 && dy + sy < 5;
                const Pixel expected =
                    inArea && inSource ? source.Row(dy + sy)[dx + sx] : 0xFF000000u;
                ASSERT_EQ(canvas.Pixels().Row(row)[column], expected) << i;
            }
        }
    }
}

TEST(CanvasBitBlt, MovesWithinItsOwnPixels) {
    for (const auto& [dx, dy] : {std::pair{0, 2}, {0, -2}, {3, 0}, {-3, 0}, {2, 1}, {-2, -1}}) {
        Canvas canvas = MakeCanvas(8, 8);
        const Bitmap before = Numbered(8, 8);
        canvas.Writable() = before;
        canvas.BitBlt(dx, dy, 8, 8, &canvas.Pixels(), 0, 0);
        for (int y = 0; y < 8; ++y) {
            for (int x = 0; x < 8; ++x) {
                const bool moved = x >= dx && y >= dy && x - dx < 8 && y - dy < 8;
                ASSERT_EQ(canvas.Pixels().Row(y)[x],
                          moved ? before.Row(y - dy)[x - dx] : before.Row(y)[x]);
            }
        }
    }
}

TEST(CanvasBitBlt, TakesAnyNumbers) {
    const Bitmap source = Numbered(4, 4);
    Canvas canvas = MakeCanvas(4, 4);
    canvas.BitBlt(INT_MIN, INT_MIN, INT_MAX, INT_MAX, &source, INT_MIN, INT_MIN);
    canvas.BitBlt(INT_MAX, INT_MAX, INT_MAX, INT_MAX, &source, INT_MAX, INT_MAX);
    canvas.BitBlt(0, 0, INT_MAX, INT_MAX, &source, INT_MIN, INT_MIN);
    EXPECT_TRUE(canvas.TakeChanged().Empty());
    canvas.BitBlt(0, 0, INT_MAX, INT_MAX, &source, 0, 0);
    EXPECT_EQ(canvas.Pixels().pixels, source.pixels);
    canvas.BitBlt(0, 0, 4, 4, nullptr, 0, 0);
    EXPECT_EQ(canvas.Pixels().pixels, source.pixels);
}

TEST(CanvasBitBlt, FillsBlackAndWhite) {
    Canvas canvas = MakeCanvas(3, 3, kRed);
    canvas.BitBlt(1, 1, 9, 9, nullptr, 0, 0, RasterOp::Whiteness);
    canvas.BitBlt(2, 2, 1, 1, nullptr, 0, 0, RasterOp::Blackness);
    EXPECT_EQ(canvas.Point(0, 0), kRed);
    EXPECT_EQ(canvas.Point(1, 2), kWhite);
    EXPECT_EQ(canvas.Point(2, 2), kBlack);
}

TEST(CanvasStretchBlt, TakesTheNearestPixel) {
    const Bitmap source = Numbered(2, 2);
    Canvas canvas = MakeCanvas(4, 4);
    canvas.StretchBlt({0, 0, 4, 4}, source);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 4; ++x) {
            EXPECT_EQ(canvas.Pixels().Row(y)[x], source.Row(y / 2)[x / 2]);
        }
    }
    // Clipping does not shift what is seen.
    Canvas part = MakeCanvas(4, 4);
    part.StretchBlt({-2, -2, 4, 4}, source);
    EXPECT_EQ(part.Pixels().Row(0)[0], source.Row(1)[1]);
    EXPECT_EQ(part.Pixels().Row(2)[2], 0xFF000000u);
    part.StretchBlt({0, 0, -3, 2}, source);
    part.StretchBlt({-INT_MAX / 2, 0, INT_MAX, INT_MAX}, source);
    EXPECT_EQ(part.Pixels().Row(0)[1], source.Row(0)[1]);
    canvas.StretchBlt({0, 0, 2, 2}, canvas.Pixels());
    EXPECT_EQ(canvas.Pixels().Row(1)[1], source.Row(1)[1]);
}

TEST(CanvasChanges, AreReportedOnceUntilTaken) {
    Canvas canvas = MakeCanvas(10, 10);
    int told = 0;
    canvas.onChanged = [&] { ++told; };
    canvas.FillRect({1, 2, 3, 4}, kRed);
    canvas.FillRect({5, 5, 50, 1}, kRed);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(canvas.TakeChanged(), (Rect{1, 2, 9, 4}));
    EXPECT_TRUE(canvas.TakeChanged().Empty());
    canvas.FillRect({20, 20, 5, 5}, kRed);
    EXPECT_EQ(told, 1);
    canvas.Fill(kWhite);
    EXPECT_EQ(told, 2);
}

}  // namespace

// Texts in pixels: outlines printed at once against plain prints, and texts at an angle.
#include <gtest/gtest.h>

#include <cmath>

#include "adapters/qt/qt_text_renderer.h"

namespace {

using platform::Canvas;
using platform::Color;
using platform::Font;
using platform::Offset;
using platform::Rect;
using platform::Rgb;
using platform::Turn;
using qt_adapter::QtTextRenderer;

constexpr Color kPaper = 0xFFFFFF;
constexpr Color kInk = 0x0000FF;
constexpr Offset kInPlace[] = {{0, 0}};

Canvas Paper(int width, int height) {
    Canvas canvas;
    canvas.Resize(width, height, kPaper);
    canvas.TakeChanged();
    return canvas;
}

Font FontOf(double points) {
    Font font;
    font.name = u"ＭＳ ゴシック";
    font.sizePoints = points;
    return font;
}

/// Smallest rectangle over all pixels that are no longer paper.
Rect Inked(const Canvas& canvas) {
    Rect inked;
    for (int y = 0; y < canvas.Height(); ++y) {
        for (int x = 0; x < canvas.Width(); ++x) {
            if (canvas.Point(x, y) != kPaper) {
                inked = platform::Union(inked, {x, y, 1, 1});
            }
        }
    }
    return inked;
}

void ExpectMarked(Canvas& canvas) {
    const Rect inked = Inked(canvas), changed = canvas.TakeChanged();
    EXPECT_EQ(platform::Union(changed, inked), changed);
    EXPECT_EQ(changed.Empty(), inked.Empty());
}

std::vector<Offset> Outline(int reachX, int reachY) {
    std::vector<Offset> offsets;
    for (int dx = 0; dx <= reachX; ++dx) {
        for (int dy = 0; dy <= reachY; ++dy) {
            offsets.insert(offsets.end(), {{dx, dy}, {-dx, -dy}, {dx, -dy}, {-dx, dy}});
        }
    }
    return offsets;
}

/// Pixels whose neighbour to the right differs by more than `least` in one colour part.
int Edges(const Canvas& canvas) {
    constexpr int kLeast = 128;
    int edges = 0;
    const platform::Bitmap& pixels = canvas.Pixels();
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x + 1 < pixels.width; ++x) {
            const auto part = [&](int at) { return static_cast<int>(pixels.Row(y)[at] & 0xFF); };
            edges += std::abs(part(x) - part(x + 1)) > kLeast ? 1 : 0;
        }
    }
    return edges;
}

TEST(TextPictures, AnEnlargedCanvasHasTheTextOfTwiceTheSize) {
    QtTextRenderer renderer;
    Canvas enlarged;
    enlarged.Resize({{200, 100}, {400, 200}}, kPaper);
    Canvas large = Paper(400, 200);
    // 18 points are 24 pixels, 36 are 48.
    renderer.Draw(enlarged, 10, 20, FontOf(18), kInk, u"文字 Agx");
    renderer.Draw(large, 20, 40, FontOf(36), kInk, u"文字 Agx");
    // Only where letters end within a pixel may the two differ.
    Canvas seen = Paper(400, 200);
    seen.Lay({0, 0, 400, 200}, enlarged.Pixels(), {0, 0, 400, 200});
    const Rect ours = Inked(seen), theirs = Inked(large);
    EXPECT_NEAR(ours.x, theirs.x, 1);
    EXPECT_NEAR(ours.y, theirs.y, 1);
    EXPECT_NEAR(ours.x + ours.width, theirs.x + theirs.width, 1);
    EXPECT_NEAR(ours.y + ours.height, theirs.y + theirs.height, 1);
    EXPECT_NEAR(Edges(enlarged), Edges(large), Edges(large) / 10);
    EXPECT_EQ(renderer.Measure(FontOf(36), u"文字 Agx").width,
              2 * renderer.Measure(FontOf(18), u"文字 Agx").width);
    // Sharper than the small text with every pixel doubled.
    Canvas small = Paper(200, 100), doubled = Paper(400, 200);
    renderer.Draw(small, 10, 20, FontOf(18), kInk, u"文字 Agx");
    doubled.StretchBlt({0, 0, 400, 200}, small.Pixels());
    EXPECT_GT(Edges(enlarged), Edges(doubled));
}

TEST(TextPictures, ATurnedTextIsEnlargedInItsPlace) {
    QtTextRenderer renderer;
    Canvas enlarged;
    enlarged.Resize({{200, 150}, {300, 225}}, kPaper);
    Canvas large = Paper(300, 225);
    const Turn turn{30, 12, 450}, larger{45, 18, 450};
    renderer.DrawTurned(enlarged, 40, 100, FontOf(20), turn, kInk, u"斜め", kInPlace);
    renderer.DrawTurned(large, 60, 150, FontOf(20), larger, kInk, u"斜め", kInPlace);
    EXPECT_EQ(enlarged.Pixels().pixels, large.Pixels().pixels);
}

TEST(TextPictures, OutlineEqualsPlainPrintsPixelByPixel) {
    QtTextRenderer renderer;
    for (const double points : {8.0, 20.0, 60.0}) {
        for (const Offset reach : {Offset{5, 3}, {0, 10}, {10, 0}, {2, 2}, {0, 0}}) {
            Font font = FontOf(points);
            font.italic = points == 20;
            const auto offsets = Outline(reach.x, reach.y);
            Canvas plain = Paper(260, 120), ours = Paper(260, 120);
            plain.StretchBlt({0, 0, 260, 120}, platform::Bitmap(1, 1, 0xFF5A785Au));
            ours.StretchBlt({0, 0, 260, 120}, platform::Bitmap(1, 1, 0xFF5A785Au));
            // Named by its class: the plain way.
            renderer.TextRenderer::DrawEach(plain, 3, 20, font, Rgb(20, 20, 20), u"輪郭 Aj",
                                            offsets);
            renderer.DrawEach(ours, 3, 20, font, Rgb(20, 20, 20), u"輪郭 Aj", offsets);
            EXPECT_EQ(plain.Pixels().pixels, ours.Pixels().pixels)
                << points << " points, " << reach.x << "," << reach.y;
        }
    }
}

TEST(TextPictures, OutlineReachesAsFarAsItsOffsets) {
    QtTextRenderer renderer;
    Canvas one = Paper(200, 200), outlined = Paper(200, 200);
    renderer.Draw(one, 60, 60, FontOf(30), kInk, u"■");
    renderer.DrawEach(outlined, 60, 60, FontOf(30), kInk, u"■", Outline(7, 4));
    const Rect small = Inked(one), large = Inked(outlined);
    EXPECT_EQ(large, (Rect{small.x - 7, small.y - 4, small.width + 14, small.height + 8}));
    ExpectMarked(outlined);
}

TEST(TextPictures, FarOutsideAndHugeTextsAreClipped) {
    QtTextRenderer renderer;
    Canvas canvas = Paper(50, 50);
    renderer.DrawEach(canvas, 1 << 24, -(1 << 24), FontOf(2048), kInk, u"■", Outline(10, 10));
    EXPECT_TRUE(canvas.TakeChanged().Empty());
    renderer.DrawEach(canvas, -1000, -1000, FontOf(2048), kInk, u"■", Outline(10, 10));
    EXPECT_EQ(canvas.Point(25, 25), kInk);
    renderer.Draw(canvas, 0, 0, FontOf(8), kInk, Text(1000000, u'あ'));
    renderer.DrawTurned(canvas, 0, 0, FontOf(8), {999, 999, 450}, kInk, Text(100000, u'あ'),
                        Outline(10, 10));
}

/// A line of squares whose top left is at (150, 150): 20 pixels high, some 80 long.
Rect TurnedBy(int angle10, int width = 0) {
    QtTextRenderer renderer;
    Canvas canvas = Paper(400, 300);
    renderer.DrawTurned(canvas, 150, 150, FontOf(99), {20, width, angle10}, kInk, u"■■■■",
                        kInPlace);
    const Rect inked = Inked(canvas);
    ExpectMarked(canvas);
    return inked;
}

TEST(TextPictures, TurnsAnticlockwiseAboutTheLinesTopLeft) {
    const auto within = [](const Rect& inner, const Rect& outer) {
        return platform::Union(inner, outer) == outer;
    };
    EXPECT_TRUE(within(TurnedBy(0), {150, 150, 80, 20}));
    EXPECT_GT(TurnedBy(0).width, 65);
    EXPECT_TRUE(within(TurnedBy(900), {150, 70, 20, 80})) << "upwards, to the right of the pen";
    EXPECT_GT(TurnedBy(900).height, 65);
    EXPECT_TRUE(within(TurnedBy(1800), {70, 130, 80, 20})) << "on its head, to the left";
    EXPECT_TRUE(within(TurnedBy(2700), {130, 150, 20, 80})) << "downwards, to the left of the pen";
    EXPECT_EQ(TurnedBy(3600), TurnedBy(0));
    // The corners of what is drawn at 0 degrees, turned by 30.
    const Rect flat = TurnedBy(0), rising = TurnedBy(300);
    const double left = flat.x - 150, right = left + flat.width;
    const double top = flat.y - 150, bottom = top + flat.height;
    const double sine = 0.5, cosine = std::sqrt(0.75);
    EXPECT_NEAR(rising.x - 150, cosine * left + sine * top, 1.5);
    EXPECT_NEAR(rising.x + rising.width - 150, cosine * right + sine * bottom, 1.5);
    EXPECT_NEAR(rising.y - 150, cosine * top - sine * right, 1.5);
    EXPECT_NEAR(rising.y + rising.height - 150, cosine * bottom - sine * left, 1.5);
}

TEST(TextPictures, WidthIsThatOfALatinLetter) {
    // Of this font a full-width letter is two wide: 4 × 2 × 10, a little of it blank.
    const Rect ten = TurnedBy(0, 10), twenty = TurnedBy(0, 20);
    EXPECT_LE(ten.width, 80);
    EXPECT_GT(ten.width, 72);
    EXPECT_NEAR(twenty.width, 2 * ten.width, 2);
    EXPECT_EQ(twenty.height, ten.height);
    EXPECT_EQ(TurnedBy(0).height, ten.height);
}

TEST(TextPictures, HeightIsThatOfTheLine) {
    QtTextRenderer renderer;
    const auto inkOf = [&](const Turn& turn) {
        Canvas canvas = Paper(300, 300);
        renderer.DrawTurned(canvas, 10, 10, FontOf(9), turn, kInk, u"■", kInPlace);
        return Inked(canvas);
    };
    EXPECT_NEAR(inkOf({200, 0, 0}).height, 10 * inkOf({20, 0, 0}).height, 10);
    EXPECT_LE(inkOf({200, 0, 0}).height, 200);
    EXPECT_EQ(inkOf({0, 0, 0}), inkOf({16, 0, 0})) << "unsaid";
    EXPECT_FALSE(inkOf({1, 0, 0}).Empty());
}

TEST(TextPictures, TurnedOutlineEqualsPlainPrints) {
    QtTextRenderer renderer;
    Canvas plain = Paper(300, 300), ours = Paper(300, 300);
    const auto offsets = Outline(5, 3);
    const Turn turn{40, 0, 333};
    for (const Offset& offset : offsets) {
        renderer.DrawTurned(plain, 100 + offset.x, 150 + offset.y, FontOf(20), turn, kInk, u"回転",
                            kInPlace);
    }
    renderer.DrawTurned(ours, 100, 150, FontOf(20), turn, kInk, u"回転", offsets);
    EXPECT_EQ(plain.Pixels().pixels, ours.Pixels().pixels);
}

}  // namespace

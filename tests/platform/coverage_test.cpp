// Laying colour through a shape: many prints at once against one print after the other.
#include "platform/coverage.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using platform::Canvas;
using platform::Coverage;
using platform::Offset;
using platform::Pixel;
using platform::Rgb;

/// Blobs with soft edges, as letters have them.
Coverage Blobs(int width, int height, unsigned seed) {
    std::mt19937 random(seed);
    Coverage shape{0, 0, width, height, {}};
    for (int i = 0; i < width * height; ++i) {
        const unsigned draw = random() % 10;
        shape.values.push_back(static_cast<uint8_t>(draw < 5   ? 0
                                                    : draw < 7 ? 255
                                                               : random() % 256));
    }
    return shape;
}

/// No two pixels alike.
Canvas Ground(int width, int height) {
    Canvas canvas;
    canvas.Resize(width, height, 0);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            canvas.Writable().Row(y)[x] = 0xFF000000u | static_cast<Pixel>(x * 7919 + y * 104729);
        }
    }
    canvas.TakeChanged();
    return canvas;
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

/// Both ways onto the same ground: pixels and changed rectangles must agree.
void ExpectSame(const Coverage& shape, const std::vector<Offset>& offsets, platform::Color color) {
    Canvas together = Ground(90, 40), single = Ground(90, 40);
    platform::Stamp(together, shape, color, offsets);
    for (const Offset& offset : offsets) {
        platform::Stamp(single, shape, color, {{offset}});
    }
    EXPECT_EQ(together.Pixels().pixels, single.Pixels().pixels);
    const platform::Rect covered = together.TakeChanged(), wanted = single.TakeChanged();
    EXPECT_EQ(platform::Union(covered, wanted), covered) << "all that was drawn is marked";
}

TEST(Stamp, MixesByTheCoverageToTheNearest) {
    Canvas canvas;
    canvas.Resize(5, 1, Rgb(100, 0, 255));
    platform::Stamp(canvas, {0, 0, 5, 1, {0, 51, 127, 128, 255}}, Rgb(200, 255, 0), {{{0, 0}}});
    EXPECT_EQ(canvas.Point(0, 0), Rgb(100, 0, 255));
    EXPECT_EQ(canvas.Point(1, 0), Rgb(120, 51, 204));
    EXPECT_EQ(canvas.Point(2, 0), Rgb(150, 127, 128));  // 149.8
    EXPECT_EQ(canvas.Point(3, 0), Rgb(150, 128, 127));  // 150.2
    EXPECT_EQ(canvas.Point(4, 0), Rgb(200, 255, 0));
}

TEST(Stamp, RepeatedPrintsMakeSoftEdgesHarder) {
    Canvas canvas;
    canvas.Resize(1, 1, 0);
    const std::vector<Offset> fourTimes(4, Offset{});
    platform::Stamp(canvas, {0, 0, 1, 1, {128}}, Rgb(255, 255, 255), fourTimes);
    // 128; 128 and half of 127: 192; 224; 240.
    EXPECT_EQ(canvas.Point(0, 0), Rgb(240, 240, 240));
}

TEST(Stamp, ManyPrintsEqualOneAfterTheOther) {
    for (unsigned seed = 0; seed < 20; ++seed) {
        Coverage shape = Blobs(70 - static_cast<int>(seed), 20, seed);
        shape.x = 10;
        shape.y = 10;
        ExpectSame(shape, Outline(static_cast<int>(seed) % 11, static_cast<int>(seed / 2)),
                   Rgb(230, 20, 100));
    }
}

TEST(Stamp, AlsoOverEveryEdge) {
    for (const Offset place : {Offset{-30, -10},
                               {60, 30},
                               {-30, 30},
                               {60, -10},
                               {-69, 0},
                               {89, 5},
                               {500, 500},
                               {-500, -500}}) {
        Coverage shape = Blobs(70, 20, 7);
        shape.x = place.x;
        shape.y = place.y;
        ExpectSame(shape, Outline(10, 10), Rgb(20, 20, 20));
    }
}

TEST(Stamp, AlsoAtAnyPlacesInAnyOrder) {
    std::mt19937 random(3);
    for (const int spread : {1, 20, 63, 64, 200}) {
        std::vector<Offset> offsets;
        for (int i = 0; i < 60; ++i) {
            offsets.push_back({static_cast<int>(random() % (spread + 1)) - spread / 2,
                               static_cast<int>(random() % (spread + 1)) - spread / 2});
        }
        Coverage shape = Blobs(65, 12, 11);
        shape.x = 5;
        shape.y = 8;
        ExpectSame(shape, offsets, Rgb(255, 255, 255));
    }
}

TEST(Stamp, NothingToDrawMarksNothing) {
    Canvas canvas = Ground(10, 10);
    platform::Stamp(canvas, {}, 0, Outline(3, 3));
    platform::Stamp(canvas, Blobs(4, 4, 1), 0, {});
    Canvas none;
    platform::Stamp(none, Blobs(4, 4, 1), 0, Outline(3, 3));
    EXPECT_TRUE(canvas.TakeChanged().Empty());
}

}  // namespace

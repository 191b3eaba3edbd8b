// Regions of polygons, worked out by hand row by row.
#include "platform/region.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace {

using platform::CreatePolyPolygonRgn;
using platform::Point;
using platform::Rect;
using platform::RegionPtr;
using platform::Size;

using Rows = std::vector<std::string>;

Rows Picture(const RegionPtr& region, const Size& size) {
    Rows rows;
    for (int y = 0; y < size.height; ++y) {
        std::string row;
        for (int x = 0; x < size.width; ++x) {
            row += region->Contains(x, y) ? '#' : '.';
        }
        rows.push_back(row);
    }
    return rows;
}

Rows Drawn(const std::vector<Point>& points, const Size& size) {
    return Picture(CreatePolyPolygonRgn(points, size), size);
}

TEST(Region, ARectangleIsOneBandWithoutItsRightAndLowerEdge) {
    const auto region = CreatePolyPolygonRgn({{0, 0}, {3, 0}, {3, 2}, {0, 2}}, {5, 4});
    EXPECT_EQ(region->rects, (std::vector<Rect>{{0, 0, 3, 2}}));
    EXPECT_TRUE(region->Covers({3, 2}));
    EXPECT_FALSE(region->Covers({5, 4}));
}

TEST(Region, CentresOnALeftEdgeAreInOnARightEdgeOut) {
    // Row 0 is cut at y = 0.5 between 1.5 and 2.5: the centre 1.5 is in, 2.5 is not.
    EXPECT_EQ(Drawn({{2, 0}, {0, 2}, {2, 4}, {4, 2}}, {4, 4}),
              (Rows{".#..", "###.", "###.", ".#.."}));
}

TEST(Region, ASlopingSide) {
    EXPECT_EQ(Drawn({{0, 0}, {4, 0}, {0, 4}}, {4, 4}), (Rows{"###.", "##..", "#...", "...."}));
    EXPECT_EQ(Drawn({{0, 0}, {0, 4}, {4, 0}}, {4, 4}), (Rows{"###.", "##..", "#...", "...."}));
}

TEST(Region, WhatIsGoneRoundTwiceIsInside) {
    EXPECT_EQ(
        Drawn({{0, 0}, {6, 0}, {6, 6}, {0, 6}, {0, 0}, {2, 2}, {4, 2}, {4, 4}, {2, 4}, {2, 2}},
              {6, 6}),
        (Rows(6, "######")));
}

TEST(Region, WhatIsGoneRoundBothWaysIsAHole) {
    EXPECT_EQ(
        Drawn({{0, 0}, {6, 0}, {6, 6}, {0, 6}, {0, 0}, {2, 2}, {2, 4}, {4, 4}, {4, 2}, {2, 2}},
              {6, 6}),
        (Rows{"######", "######", "##..##", "##..##", "######", "######"}));
}

TEST(Region, OnlyWhatLiesInTheBoxCounts) {
    EXPECT_EQ(Drawn({{-3, -3}, {2, -3}, {2, 9}, {-3, 9}}, {4, 2}), (Rows{"##..", "##.."}));
    EXPECT_TRUE(CreatePolyPolygonRgn({{9, 9}, {12, 9}, {9, 12}}, {4, 4})->rects.empty());
    EXPECT_TRUE(CreatePolyPolygonRgn({{0, 0}, {9, 0}, {9, 9}}, {0, 0})->rects.empty());
}

TEST(Region, CornersFarAwayDoNotOverflow) {
    const std::vector<Point> everywhere = {
        {INT_MIN, INT_MIN}, {INT_MAX, INT_MIN}, {INT_MAX, INT_MAX}, {INT_MIN, INT_MAX}};
    EXPECT_TRUE(CreatePolyPolygonRgn(everywhere, {3, 3})->Covers({3, 3}));
    // A side from far left above to far right below passes through (0, 0) as a diagonal.
    EXPECT_EQ(Drawn({{INT_MIN, INT_MIN}, {INT_MAX, INT_MAX}, {INT_MIN, INT_MAX}}, {3, 3}),
              (Rows{"...", "#..", "##."}));
}

TEST(Region, FewerThanThreePointsMakeNone) {
    EXPECT_EQ(CreatePolyPolygonRgn({}, {4, 4}), nullptr);
    EXPECT_EQ(CreatePolyPolygonRgn({{0, 0}, {4, 4}}, {4, 4}), nullptr);
    EXPECT_NE(CreatePolyPolygonRgn({{0, 0}, {4, 4}, {2, 2}}, {4, 4}), nullptr);
}

}  // namespace

// Corners of the shapes, worked out from their formulas.
#include "macro/shapes.h"

#include <gtest/gtest.h>

namespace {

using macro::ShapePoints;
using platform::Point;
using Points = std::vector<Point>;

TEST(Shapes, Rectangle) {
    const Points corners = {{0, 0}, {7, 0}, {7, 5}, {0, 5}};
    EXPECT_EQ(ShapePoints(0, {7, 5}), corners);
    EXPECT_EQ(ShapePoints(5, {7, 5}), corners) << "other values are rectangles";
    EXPECT_EQ(ShapePoints(-1, {7, 5}), corners);
}

TEST(Shapes, EllipseHasAPointADegree) {
    const Points points = ShapePoints(1, {100, 60});
    ASSERT_EQ(points.size(), 360u);
    EXPECT_EQ(points[0], (Point{100, 30}));
    EXPECT_EQ(points[60], (Point{75, 56}));  // 50 + 50/2, 30 + 30 * 0.866 = 55.98
    EXPECT_EQ(points[90], (Point{50, 60}));
    EXPECT_EQ(points[180], (Point{0, 30}));
    EXPECT_EQ(points[270], (Point{50, 0}));
}

TEST(Shapes, DiamondRoundsHalvesToEven) {
    EXPECT_EQ(ShapePoints(2, {8, 4}), (Points{{4, 0}, {0, 2}, {4, 4}, {8, 2}}));
    EXPECT_EQ(ShapePoints(2, {5, 7}), (Points{{2, 0}, {0, 4}, {2, 7}, {5, 4}}));
}

TEST(Shapes, StarTakesEverySecondCornerOfAPentagon) {
    EXPECT_EQ(ShapePoints(3, {100, 100}), (Points{{50, 0}, {79, 90}, {2, 35}, {98, 35}, {21, 90}}));
}

TEST(Shapes, StarIsSolid) {
    const auto region = platform::CreatePolyPolygonRgn(ShapePoints(3, {100, 100}), {100, 100});
    EXPECT_TRUE(region->Contains(50, 50)) << "the pentagon within is gone round twice";
    EXPECT_TRUE(region->Contains(50, 5));
    EXPECT_FALSE(region->Contains(50, 85)) << "between the legs";
    EXPECT_FALSE(region->Contains(20, 20));
}

TEST(Shapes, Heart) {
    const Points points = ShapePoints(4, {80, 60});
    ASSERT_EQ(points.size(), 460u);
    EXPECT_EQ(points[0], (Point{36, 20}));    // 180 degrees: 58 - 22
    EXPECT_EQ(points[90], (Point{58, 0}));    // 270
    EXPECT_EQ(points[180], (Point{80, 20}));  // 360
    EXPECT_EQ(points[229], (Point{72, 35}));  // 409: 58 + 22 * 0.656, 20 + 20 * 0.755
    EXPECT_EQ(points[230], (Point{40, 60}));
    EXPECT_EQ(points[231], (Point{8, 35}));   // 131: 22 - 22 * 0.656
    EXPECT_EQ(points[280], (Point{0, 20}));   // 180
    EXPECT_EQ(points[459], (Point{44, 20}));  // 359
}

}  // namespace

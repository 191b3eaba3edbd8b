#include "macro/shapes.h"

#include <array>
#include <cmath>
#include <numbers>

#include "text/numbers.h"

namespace macro {

namespace {

using Points = std::vector<platform::Point>;

platform::Point Rounded(double x, double y) {
    return {static_cast<int>(text::RoundHalfEven(x)), static_cast<int>(text::RoundHalfEven(y))};
}

double Radians(int degrees) {
    return degrees * std::numbers::pi / 180;
}

/// From degree `first` to `last` in steps, clockwise as y grows downwards.
void AddArc(Points& points, double centerX, double centerY, double radiusX, double radiusY,
            int first, int last, int step = 1) {
    for (int degrees = first; degrees <= last; degrees += step) {
        points.push_back(Rounded(centerX + radiusX * std::cos(Radians(degrees)),
                                 centerY + radiusY * std::sin(Radians(degrees))));
    }
}

Points Rectangle(double w, double h) {
    return {Rounded(0, 0), Rounded(w, 0), Rounded(w, h), Rounded(0, h)};
}

Points Ellipse(double w, double h) {
    Points points;
    AddArc(points, w / 2, h / 2, w / 2, h / 2, 0, 359);
    return points;
}

Points Diamond(double w, double h) {
    return {Rounded(w / 2, 0), Rounded(0, h / 2), Rounded(w / 2, h), Rounded(w, h / 2)};
}

/// Two tenths of a turn short of half a turn lie between the corners, so the outline crosses
/// itself; the winding fill makes the star solid.
Points Star(double w, double h) {
    constexpr int kStep = 144;
    Points points;
    AddArc(points, w / 2, h / 2, w / 2, h / 2, 270, 270 + 4 * kStep, kStep);
    return points;
}

/// Two arcs, a little wider than half the box each, and the point below.
Points Heart(double w, double h) {
    const double overlap = 0.1 * w / 4;
    const double radius = 1.1 * w / 4;
    Points points;
    AddArc(points, 3 * w / 4 - overlap, h / 3, radius, h / 3, 180, 409);
    points.push_back(Rounded(w / 2, h));
    AddArc(points, w / 4 + overlap, h / 3, radius, h / 3, 131, 359);
    return points;
}

constexpr std::array kShapes = {Rectangle, Ellipse, Diamond, Star, Heart};

}  // namespace

Points ShapePoints(int shape, const platform::Size& box) {
    const bool known = shape >= 0 && shape < static_cast<int>(kShapes.size());
    return kShapes[known ? static_cast<size_t>(shape) : 0](box.width, box.height);
}

}  // namespace macro

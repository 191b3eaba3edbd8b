// Outlines of cut-out pieces.
#pragma once

#include <vector>

#include "platform/region.h"

namespace macro {

/// Corners of a shape in a box of that size, rounded to whole pixels: 0 rectangle, 1 ellipse,
/// 2 diamond, 3 star, 4 heart; any other is a rectangle.
std::vector<platform::Point> ShapePoints(int shape, const platform::Size& box);

}  // namespace macro

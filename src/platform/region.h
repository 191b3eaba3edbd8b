// Regions: which pixels of a control are seen and clicked.
#pragma once

#include <memory>
#include <vector>

#include "platform/canvas.h"
#include "platform/imaging.h"

namespace platform {

struct Point {
    int x = 0, y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

/// A set of pixels as rectangles that do not overlap: bands from top to bottom, all rectangles of
/// a band with the same rows, from left to right.
struct Region {
    std::vector<Rect> rects;

    bool Contains(int x, int y) const;
    /// True when it is exactly the rectangle from (0, 0) of that size.
    bool Covers(const Size& size) const;
};

using RegionPtr = std::shared_ptr<const Region>;

/// The pixels of a box of the size `within` whose centres lie inside the closed polygon; WINDING
/// fill: every place that the outline goes round, whatever its sense and however often. A centre on
/// a left or upper edge is inside, on a right or lower one outside. Corners count as at most 2^27
/// pixels away. Empty region where nothing is inside; null with fewer than three points.
RegionPtr CreatePolyPolygonRgn(const std::vector<Point>& points, const Size& within);

}  // namespace platform

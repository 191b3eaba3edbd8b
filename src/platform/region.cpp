#include "platform/region.h"

#include <algorithm>
#include <cstdint>
#include <span>

namespace platform {

namespace {

/// Keeps every product below within 64 bits.
constexpr int64_t kFarthest = 1 << 27;

/// A side of the polygon that crosses the middles of the rows top to bottom - 1.
struct Edge {
    int64_t x, y;           // its upper end
    int64_t width, height;  // to its lower end; height above 0
    int64_t bottom;
    int turn;  // 1 downwards, -1 upwards

    /// First column whose centre lies at or right of the edge in the middle of that row.
    int64_t ColumnAt(int64_t row) const {
        // x + (row + 1/2 - y) * width / height - 1/2, rounded up; all times 2 * height.
        const int64_t numerator = 2 * height * x + (2 * (row - y) + 1) * width - height;
        const int64_t denominator = 2 * height;
        const int64_t quotient = numerator / denominator;
        return numerator % denominator > 0 ? quotient + 1 : quotient;
    }
};

struct Crossing {
    int64_t column;
    int turn;
};

/// Sides that are not level, from the highest upper end down.
std::vector<Edge> EdgesOf(const std::vector<Point>& points) {
    const auto limited = [](int value) {
        return std::clamp<int64_t>(value, -kFarthest, kFarthest);
    };
    std::vector<Edge> edges;
    for (size_t i = 0; i < points.size(); ++i) {
        const Point& from = points[i];
        const Point& to = points[(i + 1) % points.size()];
        int64_t x1 = limited(from.x), y1 = limited(from.y);
        int64_t x2 = limited(to.x), y2 = limited(to.y);
        if (y1 == y2) {
            continue;
        }
        const int turn = y1 < y2 ? 1 : -1;
        if (turn < 0) {
            std::swap(x1, x2);
            std::swap(y1, y2);
        }
        edges.push_back({x1, y1, x2 - x1, y2 - y1, y2, turn});
    }
    std::sort(edges.begin(), edges.end(), [](const Edge& a, const Edge& b) { return a.y < b.y; });
    return edges;
}

/// What lies between the crossings where the outline has gone round, as rectangles of one row.
void AddRow(std::vector<Rect>& rects, int row, std::vector<Crossing>& crossings, int width) {
    std::sort(crossings.begin(), crossings.end(),
              [](const Crossing& a, const Crossing& b) { return a.column < b.column; });
    const size_t rowBegin = rects.size();
    int turns = 0;
    int64_t begin = 0;
    for (const Crossing& crossing : crossings) {
        const int before = turns;
        turns += crossing.turn;
        if (before == 0) {
            begin = crossing.column;
        } else if (turns == 0) {
            const auto left = static_cast<int>(std::clamp<int64_t>(begin, 0, width));
            const auto right = static_cast<int>(std::clamp<int64_t>(crossing.column, 0, width));
            const bool touches =
                rects.size() > rowBegin && rects.back().x + rects.back().width == left;
            if (touches) {
                rects.back().width += right - left;
            } else if (right > left) {
                rects.push_back({left, row, right - left, 1});
            }
        }
    }
}

/// Joins the rows from `rowBegin` on with the band above where both look the same. Answers the
/// beginning of the last band.
size_t JoinBand(std::vector<Rect>& rects, size_t bandBegin, size_t rowBegin) {
    const std::span<Rect> all(rects);
    const std::span<Rect> band = all.subspan(bandBegin, rowBegin - bandBegin);
    const std::span<Rect> row = all.subspan(rowBegin);
    const bool same = std::equal(
        band.begin(), band.end(), row.begin(), row.end(), [](const Rect& above, const Rect& one) {
            return above.x == one.x && above.width == one.width && above.y + above.height == one.y;
        });
    if (!same) {
        return rowBegin;
    }
    for (Rect& rect : band) {
        ++rect.height;
    }
    rects.resize(rowBegin);
    return bandBegin;
}

}  // namespace

bool Region::Contains(int x, int y) const {
    return std::any_of(rects.begin(), rects.end(), [&](const Rect& rect) {
        return x >= rect.x && x - rect.x < rect.width && y >= rect.y && y - rect.y < rect.height;
    });
}

bool Region::Covers(const Size& size) const {
    return rects.size() == 1 && rects.front() == Rect{0, 0, size.width, size.height};
}

RegionPtr CreatePolyPolygonRgn(const std::vector<Point>& points, const Size& within) {
    if (points.size() < 3) {
        return nullptr;
    }
    auto region = std::make_shared<Region>();
    const std::vector<Edge> edges = EdgesOf(points);
    auto next = edges.begin();
    std::vector<Edge> active;
    std::vector<Crossing> crossings;
    size_t bandBegin = 0;
    for (int row = 0; row < within.height; ++row) {
        while (next != edges.end() && next->y <= row) {
            active.push_back(*next++);
        }
        std::erase_if(active, [row](const Edge& edge) { return edge.bottom <= row; });
        crossings.clear();
        for (const Edge& edge : active) {
            crossings.push_back({edge.ColumnAt(row), edge.turn});
        }
        const size_t rowBegin = region->rects.size();
        AddRow(region->rects, row, crossings, within.width);
        bandBegin = JoinBand(region->rects, bandBegin, rowBegin);
    }
    return region;
}

}  // namespace platform

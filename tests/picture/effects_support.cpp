#include "effects_support.h"

#include <cmath>

namespace picture_tests {

namespace {

std::vector<Rect> Wipe(bool columns, bool backwards, int step, platform::Size size) {
    std::vector<Rect> areas;
    const int end = columns ? size.width : size.height;
    const auto add = [&](int at) {
        areas.push_back(columns ? Rect{at, 0, step, size.height} : Rect{0, at, size.width, step});
    };
    if (backwards) {
        for (int at = end; at >= 0; at -= step) {
            add(at);
        }
    } else {
        for (int at = 0; at <= end; at += step) {
            add(at);
        }
    }
    return areas;
}

std::vector<Rect> Centre(int dy, platform::Size size) {
    std::vector<Rect> areas;
    const int pw = size.width, ph = size.height;
    const int cx = static_cast<int>(std::nearbyint(pw / 2.0));
    const int cy = static_cast<int>(std::nearbyint(ph / 2.0));
    const int dx = cy == 0 ? std::max(1, dy * cx) : std::max(1, dy * cx / cy);
    int left = cx, right = cx, top = cy, bottom = cy;
    for (bool moved = true; moved;) {
        moved = false;
        const int hw = right - cx, hh = bottom - cy;
        areas.push_back({left, top, hw * 2, dy + dx});
        areas.push_back({left, bottom, hw * 2 + dx, dy + dx});
        areas.push_back({left, top, dx + dy, hh * 2 + dy + 2});
        areas.push_back({right, top, dx + dy, hh * 2 + dy + 2});
        if (bottom < ph) bottom += dy, moved = true;
        if (bottom > ph) bottom = ph;
        if (top > 0) top -= dy, moved = true;
        if (top < 0) top = 0;
        if (right < pw) right += dx, moved = true;
        if (right > pw) right = pw;
        if (left > 0) left -= dx, moved = true;
        if (left < 0) left = 0;
    }
    return areas;
}

std::vector<Rect> Outside(int dy, platform::Size size) {
    std::vector<Rect> areas;
    const int pw = size.width, ph = size.height;
    const int dx = std::max(1, dy * pw / ph);
    const auto whole = [](double edge) { return static_cast<int>(std::nearbyint(edge)); };
    double left = 0, right = pw, top = 0, bottom = ph;
    for (bool moved = true; moved;) {
        moved = false;
        areas.push_back({whole(left), whole(top), pw, dy});
        areas.push_back({whole(left), whole(bottom), pw, dy});
        areas.push_back({whole(left), whole(top), dx, whole(ph - top * 2)});
        areas.push_back({whole(right), whole(top), dx, whole(ph - top * 2)});
        if (top < ph / 2.0) top += dy, moved = true;
        if (top > ph / 2.0) top = ph / 2.0;
        if (bottom > ph / 2.0) bottom -= dy, moved = true;
        if (bottom < ph / 2.0) bottom = ph / 2.0;
        if (left < pw / 2.0) left += dx, moved = true;
        if (left > pw / 2.0) left = pw / 2.0;
        if (right > pw / 2.0) right -= dx, moved = true;
        if (right < pw / 2.0) right = pw / 2.0;
    }
    return areas;
}

std::vector<Rect> Slits(bool columns, int step, bool erasing, platform::Size size, int slits) {
    std::vector<Rect> areas;
    const int extent = columns ? size.width : size.height;
    const int slit = std::max(2, extent / slits);
    const int count = extent / slit;
    const auto pass = [&](int k) {
        for (int i = 0; i <= count; ++i) {
            const int at = i * slit + k;
            areas.push_back(columns ? Rect{at, 0, step, size.height}
                                    : Rect{0, at, size.width, step});
        }
    };
    if (erasing) {
        for (int k = slit; k >= 0; k -= step) {
            pass(k);
        }
    } else {
        for (int k = 0; k <= slit; k += step) {
            pass(k);
        }
    }
    return areas;
}

}  // namespace

std::vector<Rect> RuleAreas(int number, int step, bool erasing, platform::Size size, int slits) {
    switch (number) {
        case 0:
        case 1:
            return Wipe(false, number == 1, step, size);
        case 2:
        case 3:
            return Wipe(true, number == 3, step, size);
        case 4:
            return Centre(step, size);
        case 5:
            return Outside(step, size);
        default:
            return Slits(number == 7, step, erasing, size, slits);
    }
}

}  // namespace picture_tests

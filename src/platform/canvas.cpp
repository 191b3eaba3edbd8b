#include "platform/canvas.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace platform {

namespace {

/// Rectangle from edges that may lie beyond an int; empty where they cross.
Rect FromEdges(int64_t left, int64_t top, int64_t right, int64_t bottom) {
    if (right <= left || bottom <= top) {
        return {};
    }
    return {static_cast<int>(left), static_cast<int>(top), static_cast<int>(right - left),
            static_cast<int>(bottom - top)};
}

Rect Bounds(const Bitmap& bitmap) {
    return {0, 0, bitmap.width, bitmap.height};
}

/// Quotient rounded to the nearest whole number, halves upwards; `by` is positive.
int64_t DivideRounded(int64_t value, int64_t by) {
    const int64_t doubled = 2 * value + by;
    const int64_t quotient = doubled / (2 * by);
    return doubled % (2 * by) < 0 ? quotient - 1 : quotient;
}

/// Copies rows of one bitmap to another (or within one), both areas wholly inside.
void CopyRows(Bitmap& target, const Rect& area, const Bitmap& source, int sourceX, int sourceY) {
    const size_t rowBytes = static_cast<size_t>(area.width) * sizeof(Pixel);
    if (area.width == target.width && area.width == source.width) {
        std::memmove(target.Row(area.y), source.Row(sourceY),
                     rowBytes * static_cast<size_t>(area.height));
        return;
    }
    // Downward moves within one bitmap start at the last row, or they would overwrite rows that
    // are still to be copied.
    const bool upwards = area.y > sourceY;
    for (int i = 0; i < area.height; ++i) {
        const int row = upwards ? area.height - 1 - i : i;
        std::memmove(target.Row(area.y + row) + area.x, source.Row(sourceY + row) + sourceX,
                     rowBytes);
    }
}

/// An area wholly inside.
void FillRows(Bitmap& target, const Rect& area, Color fill) {
    if (area.Empty()) {
        return;
    }
    // Copying is several times as fast as filling.
    Pixel* first = target.Row(area.y) + area.x;
    std::fill_n(first, area.width, ToPixel(fill));
    for (int y = area.y + 1; y < area.y + area.height; ++y) {
        std::memcpy(target.Row(y) + area.x, first, static_cast<size_t>(area.width) * sizeof(Pixel));
    }
}

}  // namespace

Rect Intersection(const Rect& a, const Rect& b) {
    const auto right = [](const Rect& r) { return int64_t{r.x} + r.width; };
    const auto bottom = [](const Rect& r) { return int64_t{r.y} + r.height; };
    return FromEdges(std::max(a.x, b.x), std::max(a.y, b.y), std::min(right(a), right(b)),
                     std::min(bottom(a), bottom(b)));
}

Rect Union(const Rect& a, const Rect& b) {
    if (a.Empty()) {
        return b.Empty() ? Rect{} : b;
    }
    if (b.Empty()) {
        return a;
    }
    return FromEdges(std::min(a.x, b.x), std::min(a.y, b.y),
                     std::max(int64_t{a.x} + a.width, int64_t{b.x} + b.width),
                     std::max(int64_t{a.y} + a.height, int64_t{b.y} + b.height));
}

void TextRenderer::DrawEach(Canvas& canvas, int x, int y, const Font& font, Color color,
                            TextView text, std::span<const Offset> offsets) {
    for (const Offset& offset : offsets) {
        Draw(canvas, x + offset.x, y + offset.y, font, color, text);
    }
}

void Canvas::Resize(int width, int height, Color fill) {
    Bitmap fresh;
    fresh.width = std::max(width, 0);
    fresh.height = std::max(height, 0);
    const Rect kept = Intersection(Bounds(fresh), Bounds(pixels_));
    const bool plain = groundDue_ && !groundPicture_ && ground_ == fill;
    if (kept.Empty() || plain) {
        groundDue_ = true;
        ground_ = fill;
        groundPicture_ = nullptr;
    } else {
        fresh = Bitmap(fresh.width, fresh.height, ToPixel(fill));
        CopyRows(fresh, kept, Pixels(), 0, 0);
    }
    pixels_ = std::move(fresh);
    // What was still unseen may lie outside the new size.
    changed_ = Intersection(changed_, Bounds(pixels_));
    Touch(Bounds(pixels_));
}

void Canvas::Cover(Color fill, BitmapPtr picture) {
    groundDue_ = true;
    ground_ = fill;
    groundPicture_ = std::move(picture);
    Touch(Bounds(pixels_));
}

void Canvas::FillWithGround() const {
    groundDue_ = false;
    const BitmapPtr picture = std::move(groundPicture_);
    groundPicture_ = nullptr;
    const Rect covered = picture ? Intersection(Bounds(pixels_), Bounds(*picture)) : Rect{};
    const size_t count = static_cast<size_t>(pixels_.width) * static_cast<size_t>(pixels_.height);
    if (pixels_.pixels.size() != count) {
        pixels_.pixels.assign(count, ToPixel(ground_));
    } else {
        // What the picture covers is written once only.
        FillRows(pixels_, {covered.width, 0, pixels_.width - covered.width, pixels_.height},
                 ground_);
        FillRows(pixels_, {0, covered.height, covered.width, pixels_.height - covered.height},
                 ground_);
    }
    if (!covered.Empty()) {
        CopyRows(pixels_, covered, *picture, 0, 0);
    }
}

void Canvas::FillRect(const Rect& area, Color fill) {
    const Rect inside = Intersection(area, Bounds(pixels_));
    if (inside.Empty()) {
        return;
    }
    DrawGround();
    FillRows(pixels_, inside, fill);
    Touch(inside);
}

void Canvas::Line(int x1, int y1, int x2, int y2, Color lineColor) {
    // Keeps the products below within 64 bits; no canvas is nearly as large.
    static constexpr int kFarthest = 1 << 28;
    DrawGround();
    const auto limited = [](int value) { return std::clamp(value, -kFarthest, kFarthest); };
    x1 = limited(x1), y1 = limited(y1), x2 = limited(x2), y2 = limited(y2);
    const bool steep = std::abs(y2 - y1) > std::abs(x2 - x1);
    int from = steep ? y1 : x1, to = steep ? y2 : x2;
    int acrossFrom = steep ? x1 : y1, acrossTo = steep ? x2 : y2;
    if (from > to) {
        std::swap(from, to);
        std::swap(acrossFrom, acrossTo);
    }
    const int length = to - from;
    const int limit = steep ? pixels_.height : pixels_.width;
    const int acrossLimit = steep ? pixels_.width : pixels_.height;
    Rect drawn;
    for (int i = std::max(from, 0); i <= std::min(to, limit - 1); ++i) {
        const int64_t offset =
            length == 0 ? 0 : DivideRounded(int64_t{i - from} * (acrossTo - acrossFrom), length);
        const int64_t across = acrossFrom + offset;
        if (across < 0 || across >= acrossLimit) {
            continue;
        }
        const int x = steep ? static_cast<int>(across) : i;
        const int y = steep ? i : static_cast<int>(across);
        pixels_.Row(y)[x] = ToPixel(lineColor);
        drawn = Union(drawn, {x, y, 1, 1});
    }
    Touch(drawn);
}

Color Canvas::Point(int x, int y) const {
    if (x < 0 || y < 0 || x >= pixels_.width || y >= pixels_.height) {
        return Rgb(255, 255, 255);
    }
    return ToColor(Pixels().Row(y)[x]);
}

void Canvas::BitBlt(int x, int y, int width, int height, const Bitmap* source, int sourceX,
                    int sourceY, RasterOp op) {
    if (op != RasterOp::SourceCopy) {
        const bool white = op == RasterOp::Whiteness;
        FillRect({x, y, width, height}, white ? Rgb(255, 255, 255) : Rgb(0, 0, 0));
        return;
    }
    if (source == nullptr) {
        return;
    }
    // Edges within the source, moved to the target, then clipped to it. 64 bits, since offsets of
    // any size may come in.
    const int64_t left = std::max<int64_t>({0, x, int64_t{x} - sourceX});
    const int64_t top = std::max<int64_t>({0, y, int64_t{y} - sourceY});
    const int64_t right = std::min<int64_t>(
        {pixels_.width, int64_t{x} + width, int64_t{x} + source->width - sourceX});
    const int64_t bottom = std::min<int64_t>(
        {pixels_.height, int64_t{y} + height, int64_t{y} + source->height - sourceY});
    const Rect inside = FromEdges(left, top, right, bottom);
    if (inside.Empty()) {
        return;
    }
    DrawGround();
    CopyRows(pixels_, inside, *source, static_cast<int>(left - x + sourceX),
             static_cast<int>(top - y + sourceY));
    Touch(inside);
}

void Canvas::StretchBlt(const Rect& target, const Bitmap& source) {
    const Rect inside = Intersection(target, Bounds(pixels_));
    if (inside.Empty() || source.Empty()) {
        return;
    }
    if (target.width == source.width && target.height == source.height) {
        BitBlt(target.x, target.y, target.width, target.height, &source, 0, 0);
        return;
    }
    if (&source == &pixels_) {
        StretchBlt(target, Bitmap(source));
        return;
    }
    DrawGround();
    std::vector<int> columns(static_cast<size_t>(inside.width));
    for (int i = 0; i < inside.width; ++i) {
        const int64_t place = int64_t{inside.x} - target.x + i;
        columns[static_cast<size_t>(i)] = static_cast<int>(place * source.width / target.width);
    }
    for (int y = inside.y; y < inside.y + inside.height; ++y) {
        const int64_t place = int64_t{y} - target.y;
        const Pixel* from = source.Row(static_cast<int>(place * source.height / target.height));
        Pixel* to = pixels_.Row(y) + inside.x;
        for (const int column : columns) {
            *to++ = from[column];
        }
    }
    Touch(inside);
}

void Canvas::Touch(const Rect& area) {
    const Rect inside = Intersection(area, Bounds(pixels_));
    if (inside.Empty()) {
        return;
    }
    const bool first = changed_.Empty();
    changed_ = Union(changed_, inside);
    if (first && onChanged) {
        onChanged();
    }
}

Rect Canvas::TakeChanged() {
    const Rect taken = changed_;
    changed_ = {};
    return taken;
}

}  // namespace platform

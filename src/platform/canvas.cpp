#include "platform/canvas.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace platform {

namespace {

// Keeps every product below within 64 bits, and every edge within an int; no canvas is nearly as
// large.
constexpr int kFarthest = 1 << 28;

int Limited(int64_t value) {
    return static_cast<int>(std::clamp<int64_t>(value, -kFarthest, kFarthest));
}

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

int EdgeOf(int unit, int units, int pixels) {
    return units == pixels || units <= 0
               ? unit
               : Limited(DivideRounded(int64_t{Limited(unit)} * pixels, units));
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

/// For each of `count` places from `from` on the place in a source of `length` that lies on
/// `whole`.
std::vector<int> Places(int from, int count, int start, int whole, int length, bool repeats) {
    std::vector<int> places(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i) {
        const int64_t place = int64_t{from} - start + i;
        places[static_cast<size_t>(i)] = static_cast<int>(
            repeats ? std::min<int64_t>(place, length - 1) : place * length / whole);
    }
    return places;
}

/// `inside` lies within the target and within `whole`, on which the source lies; `repeats`: see
/// Canvas::Lay.
void LayRows(Bitmap& target, const Rect& inside, const Bitmap& source, const Rect& whole,
             bool repeats) {
    if (whole.width == source.width && whole.height == source.height) {
        CopyRows(target, inside, source, inside.x - whole.x, inside.y - whole.y);
        return;
    }
    const std::vector<int> columns =
        Places(inside.x, inside.width, whole.x, whole.width, source.width, repeats);
    const std::vector<int> rows =
        Places(inside.y, inside.height, whole.y, whole.height, source.height, repeats);
    size_t run = 1;  // of columns that lie side by side in the source, too
    while (run < columns.size() && columns[run] == columns[run - 1] + 1) {
        ++run;
    }
    for (size_t y = 0; y < rows.size(); ++y) {
        const Pixel* from = source.Row(rows[y]);
        Pixel* to = target.Row(inside.y + static_cast<int>(y)) + inside.x;
        std::memcpy(to, from + columns[0], run * sizeof(Pixel));
        for (size_t x = run; x < columns.size(); ++x) {
            to[x] = from[columns[x]];
        }
    }
}

/// Whether it is rounding that makes the lengths differ.
bool NearlyEqual(const Rect& whole, const Bitmap& source) {
    return std::abs(whole.width - source.width) <= 1 && std::abs(whole.height - source.height) <= 1;
}

}  // namespace

int Scale::X(int unit) const {
    return EdgeOf(unit, units.width, pixels.width);
}

int Scale::Y(int unit) const {
    return EdgeOf(unit, units.height, pixels.height);
}

Rect Scale::ToPixels(const Rect& area) const {
    if (Plain()) {
        return area;
    }
    return FromEdges(X(area.x), Y(area.y), X(Limited(int64_t{area.x} + area.width)),
                     Y(Limited(int64_t{area.y} + area.height)));
}

Size Scale::ToPixels(const Size& size) const {
    return {std::max(1, X(size.width)), std::max(1, Y(size.height))};
}

double Scale::Factor() const {
    return Plain() || units.height <= 0 ? 1.0 : double(pixels.height) / units.height;
}

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

void Canvas::Resize(Scale scale, Color fill) {
    for (int* length :
         {&scale.units.width, &scale.units.height, &scale.pixels.width, &scale.pixels.height}) {
        *length = std::max(*length, 0);
    }
    Bitmap fresh;
    fresh.width = scale.pixels.width;
    fresh.height = scale.pixels.height;
    const Rect old = scale.ToPixels(Rect{0, 0, Width(), Height()});
    const Rect kept = Intersection(Bounds(fresh), old);
    const bool even = groundDue_ && !groundPicture_ && ground_ == fill;
    if (kept.Empty() || even) {
        groundDue_ = true;
        ground_ = fill;
        groundPicture_ = nullptr;
    } else {
        fresh = Bitmap(fresh.width, fresh.height, ToPixel(fill));
        LayRows(fresh, kept, Pixels(), old, NearlyEqual(old, pixels_));
    }
    pixels_ = std::move(fresh);
    scale_ = scale;
    // What was still unseen may lie outside the new size.
    changed_ = Intersection(changed_, Bounds(pixels_));
    Touch(Bounds(pixels_));
}

void Canvas::Cover(Color fill, BitmapPtr picture, Size size) {
    groundDue_ = true;
    ground_ = fill;
    groundPicture_ = std::move(picture);
    groundSize_ = size;
    Touch(Bounds(pixels_));
}

void Canvas::FillWithGround() const {
    groundDue_ = false;
    const BitmapPtr picture = std::move(groundPicture_);
    groundPicture_ = nullptr;
    const Rect whole = scale_.ToPixels(Rect{0, 0, groundSize_.width, groundSize_.height});
    const Rect covered = picture ? Intersection(Bounds(pixels_), whole) : Rect{};
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
        LayRows(pixels_, covered, *picture, whole, NearlyEqual(whole, *picture));
    }
}

void Canvas::FillRect(const Rect& area, Color fill) {
    FillPixels(scale_.ToPixels(area), fill);
}

void Canvas::FillPixels(const Rect& area, Color fill) {
    const Rect inside = Intersection(area, Bounds(pixels_));
    if (inside.Empty()) {
        return;
    }
    DrawGround();
    FillRows(pixels_, inside, fill);
    Touch(inside);
}

void Canvas::Line(int x1, int y1, int x2, int y2, Color lineColor) {
    DrawGround();
    x1 = Limited(x1), y1 = Limited(y1), x2 = Limited(x2), y2 = Limited(y2);
    const bool steep = std::abs(y2 - y1) > std::abs(x2 - x1);
    int from = steep ? y1 : x1, to = steep ? y2 : x2;
    int acrossFrom = steep ? x1 : y1, acrossTo = steep ? x2 : y2;
    if (from > to) {
        std::swap(from, to);
        std::swap(acrossFrom, acrossTo);
    }
    const int length = to - from;
    const int limit = steep ? Height() : Width();
    const int acrossLimit = steep ? Width() : Height();
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
        const Rect dot = scale_.ToPixels(Rect{x, y, 1, 1});
        FillRows(pixels_, dot, lineColor);
        drawn = Union(drawn, dot);
    }
    Touch(drawn);
}

Color Canvas::Point(int x, int y) const {
    if (x < 0 || y < 0 || x >= Width() || y >= Height() || pixels_.Empty()) {
        return Rgb(255, 255, 255);
    }
    return ToColor(Pixels().Row(
        std::min(scale_.Y(y), pixels_.height - 1))[std::min(scale_.X(x), pixels_.width - 1)]);
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
    if (!scale_.Plain()) {
        Lay(scale_.ToPixels(Rect{x, y, width, height}), *source,
            {scale_.X(Limited(int64_t{x} - sourceX)), scale_.Y(Limited(int64_t{y} - sourceY)),
             source->width, source->height});
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

void Canvas::Lay(const Rect& area, const Bitmap& source, const Rect& whole) {
    LayPixels(area, source, whole, NearlyEqual(whole, source));
}

void Canvas::StretchBlt(const Rect& target, const Bitmap& source) {
    const Rect whole = scale_.ToPixels(target);
    LayPixels(whole, source, whole, false);
}

void Canvas::LayPixels(const Rect& area, const Bitmap& source, const Rect& whole, bool repeats) {
    const Rect inside = Intersection(Intersection(area, whole), Bounds(pixels_));
    if (inside.Empty() || source.Empty()) {
        return;
    }
    const bool sameSize = whole.width == source.width && whole.height == source.height;
    if (&source == &pixels_ && !sameSize) {
        LayPixels(area, Bitmap(source), whole, repeats);
        return;
    }
    DrawGround();
    LayRows(pixels_, inside, source, whole, repeats);
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

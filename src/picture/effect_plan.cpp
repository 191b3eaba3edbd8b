#include "picture/effect_plan.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "picture/effect_pauses.h"
#include "text/numbers.h"

namespace picture {

namespace {

using platform::Rect;

constexpr int kSlowest = -999;
constexpr int kMostParts = 100;
constexpr int kThinnestPart = 2;  // pixels of a slit or of a block's side

struct EffectRow;

/// A plan in the making.
struct Making {
    const EffectRow& row;
    EffectSettings settings;
    bool erasing;
    platform::Size size;
    Rect canvas;  // in pixels of the picture
    const std::function<double()>& random;
    int step;      // pixels a band
    double pause;  // ms
    EffectPlan plan;

    bool Sees(const Rect& area) const { return !platform::Intersection(area, canvas).Empty(); }
    /// What a band costs: nothing where nobody sees it.
    double PauseFor(const Rect& area) const { return Sees(area) ? pause : 0; }
};

/// How an effect walks: its geometry, and at which speeds bands become wider than a pixel.
struct EffectRow {
    void (*walk)(Making&);
    bool columns;    // bands stand upright and follow each other along x
    bool backwards;  // the far edge comes first
    int fastFrom;    // from this speed on a band is speed - fastLess pixels wide, else one
    int fastLess;
    double widening;  // of every step
    EffectPauses pauses;
};

/// The strip of `width` pixels at `place` along the effect's axis, across the whole picture.
Rect Strip(const Making& making, int place, int width) {
    return making.row.columns ? Rect{place, 0, width, making.size.height}
                              : Rect{0, place, making.size.width, width};
}

int Extent(const Making& making) {
    return making.row.columns ? making.size.width : making.size.height;
}

/// Both ends count, so that one band may lie beyond the edge; backwards the last one may miss the
/// near edge.
void WalkStrips(Making& making) {
    const int extent = Extent(making);
    for (int i = 0; i <= extent; i += making.step) {
        const int place = making.row.backwards ? extent - i : i;
        const Rect band = Strip(making, place, making.step);
        making.plan.bands.push_back({band, 0, making.PauseFor(band)});
    }
}

/// Four bands that are drawn together, after one pause.
void AddCycle(Making& making, const std::array<Rect, 4>& areas) {
    const bool seen = std::any_of(areas.begin(), areas.end(),
                                  [&](const Rect& area) { return making.Sees(area); });
    double before = seen ? making.pause : 0;
    for (const Rect& area : areas) {
        making.plan.bands.push_back({area, before, 0, false});
        before = 0;
    }
    making.plan.bands.back().stopsHere = true;
}

/// Moves an edge by `by` towards `limit` and not beyond. True when it moved.
template <class Number>
bool MoveTo(Number& edge, Number limit, int by) {
    if (edge == limit) {
        return false;
    }
    edge = edge < limit ? std::min<Number>(edge + by, limit) : std::max<Number>(edge - by, limit);
    return true;
}

void OpenFromCentre(Making& making) {
    const auto [width, height] = making.size;
    const int centreX = static_cast<int>(text::RoundHalfEven(width / 2.0));
    const int centreY = static_cast<int>(text::RoundHalfEven(height / 2.0));
    const int dy = making.step;
    // A picture of one row has its centre on row 0: any width of step opens it in one cycle.
    const int64_t slope = int64_t{making.step} * centreX / std::max(1, centreY);
    const int dx = static_cast<int>(std::max<int64_t>(1, slope));
    int left = centreX, right = centreX, top = centreY, bottom = centreY;
    for (bool moved = true; moved;) {
        const int halfWidth = right - centreX;
        const int halfHeight = bottom - centreY;
        AddCycle(making, {{{left, top, halfWidth * 2, dy + dx},
                           {left, bottom, halfWidth * 2 + dx, dy + dx},
                           {left, top, dx + dy, halfHeight * 2 + dy + 2},
                           {right, top, dx + dy, halfHeight * 2 + dy + 2}}});
        moved = MoveTo(bottom, height, dy);
        moved = MoveTo(top, 0, dy) || moved;
        moved = MoveTo(right, width, dx) || moved;
        moved = MoveTo(left, 0, dx) || moved;
    }
}

/// The edges meet in the middle of the picture, for odd sizes between two pixels. Kept: the
/// bands at the top and bottom stay as wide as the picture and so run over its right edge.
void CloseFromOutside(Making& making) {
    const auto [width, height] = making.size;
    const int dy = making.step;
    const int64_t slope = int64_t{making.step} * width / height;
    const int dx = static_cast<int>(std::max<int64_t>(1, slope));
    double left = 0, top = 0, right = width, bottom = height;
    const auto pixel = [](double edge) { return static_cast<int>(text::RoundHalfEven(edge)); };
    for (bool moved = true; moved;) {
        const int inner = pixel(height - top * 2);
        AddCycle(making, {{{pixel(left), pixel(top), width, dy},
                           {pixel(left), pixel(bottom), width, dy},
                           {pixel(left), pixel(top), dx, inner},
                           {pixel(right), pixel(top), dx, inner}}});
        moved = MoveTo(top, height / 2.0, dy);
        moved = MoveTo(bottom, height / 2.0, dy) || moved;
        moved = MoveTo(left, width / 2.0, dx) || moved;
        moved = MoveTo(right, width / 2.0, dx) || moved;
    }
}

int PartWidth(int extent, int count) {
    return std::max(kThinnestPart, extent / count);
}

/// Every pass goes over all slits and adds a band to each. Its own pause comes before the first
/// band that is seen.
void WalkSlits(Making& making) {
    const int slit = PartWidth(Extent(making), making.settings.slits);
    const int count = Extent(making) / slit;
    for (int pass = 0; pass <= slit; pass += making.step) {
        const int within = making.erasing ? slit - pass : pass;
        double before = making.settings.fixedSpeed ? 0 : making.pause;
        for (int i = 0; i <= count; ++i) {
            const Rect band = Strip(making, i * slit + within, making.step);
            const bool seen = making.Sees(band);
            making.plan.bands.push_back({band, seen ? before + making.pause : 0});
            before = seen ? 0 : before;
        }
    }
}

/// Blocks are drawn at random with replacement: some come twice, some never, and one row and column
/// of them lie beyond the edge. The whole picture makes up for it in the end.
void ScatterBlocks(Making& making) {
    const int blocks = making.settings.blocks;
    const int width = PartWidth(making.size.width, blocks);
    const int height = PartWidth(making.size.height, blocks);
    const int columns = making.size.width / width;
    const int rows = making.size.height / height;
    const auto place = [&making](int count, int extent) {
        return static_cast<int>(text::Int(making.random() * (count + 1))) * extent;
    };
    for (int i = 0; i < 4 * blocks * blocks; ++i) {
        const int x = place(columns, width);
        const int y = place(rows, height);
        const Rect block{x, y, width, height};
        const bool pauses = !making.settings.fixedSpeed || i < blocks * blocks;
        making.plan.bands.push_back({block, pauses ? making.PauseFor(block) : 0});
    }
    making.plan.wholeAtEnd = true;
}

constexpr std::array<EffectRow, kEffectCount> kEffects{{
    // walk, columns, backwards, fastFrom, fastLess, widening, {weight, share, fixed ms}
    {WalkStrips, false, false, 7, 6, 1, {10, 1, 1}},
    {WalkStrips, false, true, 7, 6, 1, {10, 1, 1}},
    {WalkStrips, true, false, 7, 6, 1.5, {10, 0.7F, 1}},
    {WalkStrips, true, true, 7, 6, 1.5, {10, 0.7F, 1}},
    {OpenFromCentre, false, false, 7, 5, 1, {15, 1, 2}},
    {CloseFromOutside, false, false, 7, 5, 1, {15, 1, 2}},
    {WalkSlits, false, false, 8, 6, 1, {6, 1, 1}},
    {WalkSlits, true, false, 8, 6, 1, {6, 1, 1}},
    {ScatterBlocks, false, false, 0, 0, 1, {kMosaicWeight, 1, 1}},
}};

/// By the lines of the canvas.
double PauseFactor(int lines) {
    return lines > kFullPauseLines ? double(kFullPauseLines) / lines : 1;
}

int StepOf(const EffectRow& row, int speed) {
    const int step = speed >= row.fastFrom ? speed - row.fastLess : 1;
    return static_cast<int>(text::Int(step * row.widening));
}

EffectSettings Drawable(EffectSettings settings) {
    settings.speed = std::max(settings.speed, kSlowest);
    settings.slits = std::clamp(settings.slits, 1, kMostParts);
    settings.blocks = std::clamp(settings.blocks, 1, kMostParts);
    return settings;
}

}  // namespace

double EffectPlan::Length() const {
    double length = 0;
    for (const EffectBand& band : bands) {
        length += band.before + band.after;
    }
    return length;
}

EffectPlan PlanEffect(int number, const EffectSettings& settings, bool erasing,
                      platform::Size picture, const Rect& canvas,
                      const std::function<double()>& random) {
    if (number < 0 || number >= kEffectCount || picture.Empty()) {
        return {};
    }
    const EffectRow& row = kEffects[static_cast<size_t>(number)];
    const EffectSettings drawable = Drawable(settings);
    Making making{row,
                  drawable,
                  erasing,
                  picture,
                  canvas,
                  random,
                  StepOf(row, drawable.speed),
                  PauseOf(row.pauses, drawable) * PauseFactor(canvas.height),
                  {}};
    row.walk(making);
    return std::move(making.plan);
}

}  // namespace picture

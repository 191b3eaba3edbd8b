#include "macro/printing.h"

#include <algorithm>
#include <cstdlib>

#include "macro/text_words.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"

namespace macro {

namespace {

enum KageKinds : int { kShadow = 1, kBlackOutline = 2, kWhiteOutline = 3 };

constexpr platform::Color kBlackOfOutline = platform::Rgb(20, 20, 20);
constexpr platform::Color kWhiteOfOutline = platform::Rgb(230, 230, 230);
// Further than any canvas, and far from where numbers end.
constexpr int kFarthestPen = 1 << 24;

Text WithoutLineEnds(TextView text) {
    Text result(text);
    std::erase_if(result, [](char16_t c) { return c == u'\r' || c == u'\n'; });
    return result;
}

}  // namespace

Text Printable(TextView text) {
    Text result = WithoutLineEnds(text);
    std::replace(result.begin(), result.end(), u'\t', u' ');
    return result;
}

std::vector<platform::Offset> UnderlayOffsets(Run& run, const platform::Canvas& canvas) {
    const platform::Scale& scale = canvas.Scaling();
    if (run.KageKind == kShadow) {
        return {{scale.X(run.ZureX), scale.Y(run.ZureY)}};
    }
    if (run.KageKind != kBlackOutline && run.KageKind != kWhiteOutline) {
        return {};
    }
    // That lasts, also for later shadows.
    run.ZureX = std::min(std::abs(run.ZureX), kWidestOutline);
    run.ZureY = std::min(std::abs(run.ZureY), kWidestOutline);
    std::vector<platform::Offset> offsets;
    for (int dx = 0; dx <= scale.X(run.ZureX); ++dx) {
        for (int dy = 0; dy <= scale.Y(run.ZureY); ++dy) {
            offsets.insert(offsets.end(), {{dx, dy}, {-dx, -dy}, {dx, -dy}, {-dx, dy}});
        }
    }
    return offsets;
}

platform::Color OutlineColor(const Run& run) {
    if (run.state.BorderColorIndex > 0) {
        return QBColor(run.state.BorderColorIndex);
    }
    return run.KageKind == kBlackOutline ? kBlackOfOutline : kWhiteOfOutline;
}

void DrawUnderlay(Run& run, TextView printable) {
    const platform::Color color = run.KageKind == kShadow ? QBColor(0) : OutlineColor(run);
    for (platform::Canvas* canvas : Canvases(run.app)) {
        const std::vector<platform::Offset> offsets = UnderlayOffsets(run, *canvas);
        if (offsets.empty()) {
            return;
        }
        if (!printable.empty()) {
            run.app.platform.textRenderer.DrawEach(*canvas, canvas->penX, canvas->penY,
                                                   canvas->font, color, printable, offsets);
        }
        // Kept: not what the canvas had, so a text with a shadow is black until a word sets a
        // colour.
        canvas->color = run.TextForeColor;
    }
}

void PrintAtPen(Run& run, platform::Canvas& canvas, TextView printable) {
    if (!printable.empty()) {
        run.app.platform.textRenderer.Draw(canvas, canvas.penX, canvas.penY, canvas.font,
                                           canvas.color, printable);
    }
}

void MovePen(int& coordinate, int by) {
    coordinate = std::clamp(coordinate + by, -kFarthestPen, kFarthestPen);
}

platform::Canvas& CanvasInForce(Application& app) {
    return InFullScreen(app.state) ? app.windows.slidescreen.P2.canvas
                                   : app.windows.form1.Picture1.canvas;
}

void TraceText(Run& run, platform::Offset place, TextView text) {
    if (text.find_first_not_of(u" \t\r\n　") == TextView::npos) {
        return;
    }
    const platform::Canvas& canvas = CanvasInForce(run.app);
    run.app.platform.trace.Event("text", {{"x", double(place.x)},
                                          {"y", double(place.y)},
                                          {"text", WithoutLineEnds(text)},
                                          {"colour", double(canvas.color)},
                                          {"font", canvas.font.name},
                                          {"size", canvas.font.sizePoints}});
}

}  // namespace macro

#include "macro/rotated_text.h"

#include <algorithm>
#include <cmath>

#include "macro/arguments.h"
#include "macro/printing.h"
#include "macro/reader.h"
#include "macro/text_words.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"
#include "text/numbers.h"

namespace macro {

namespace {

constexpr double kLongestSide = 999;  // pixels
constexpr double kFullTurn = 360;     // degrees
constexpr platform::Color kShadowInWindow = platform::Rgb(20, 20, 20);

struct Rotated {
    int height, width, angle10;
    Text text;
};

Rotated ReadRotated(const Run& run) {
    const auto fields = CallFields(run.MacroLine, 4);
    const auto side = [&](size_t index) {
        const double pixels = text::RoundHalfEven(NumberField(fields, index));
        return static_cast<int>(std::clamp(pixels, 0.0, kLongestSide));
    };
    const double angle = std::clamp(NumberField(fields, 2), 0.0, kFullTurn);
    return {side(0), side(1), static_cast<int>(std::lround(10 * angle)),
            Printable(CallText(run.MacroLine, 3, Unquoted))};
}

/// Kept: blanks up to as many as the text has bytes too few for two a character. They are seen
/// under a line of underlining.
Text Padded(TextView text) {
    const auto narrow =
        std::count_if(text.begin(), text.end(), [](char16_t c) { return ColumnsOf(c) == 1; });
    return Text(text) + Text(static_cast<size_t>(narrow), u' ');
}

void SetColors(Run& run, platform::Color onScreen, platform::Color inWindow) {
    run.app.windows.slidescreen.P2.canvas.color = onScreen;
    run.app.windows.form1.Picture1.canvas.color = inWindow;
}

void DrawRotatedUnderlay(Run& run, const Rotated& rotated) {
    const bool shadow = run.KageKind == 1;
    if (shadow) {
        run.TextForeColor = run.app.windows.form1.Picture1.canvas.color;
        // Kept: the two shadows differ.
        SetColors(run, QBColor(0), kShadowInWindow);
    } else {
        SetColors(run, OutlineColor(run), OutlineColor(run));
    }
    DrawRotatedPair(run, rotated.height, rotated.width, rotated.angle10, rotated.text,
                    [&](const platform::Canvas& canvas) {
                        auto offsets = UnderlayOffsets(run, canvas);
                        if (!shadow) {
                            offsets.push_back(offsets.back());  // Kept: one more print there
                        }
                        return offsets;
                    });
    SetColors(run, run.TextForeColor, run.TextForeColor);
}

}  // namespace

void DrawRotatedPair(Run& run, int height, int width, int angle10, TextView text,
                     const OffsetsOn& offsetsOn) {
    platform::Canvas& window = run.app.windows.form1.Picture1.canvas;
    platform::Canvas& screen = run.app.windows.slidescreen.P2.canvas;
    if (text.empty()) {
        return;
    }
    const Text padded = Padded(text);
    for (platform::Canvas* canvas : {&window, &screen}) {
        platform::Font font = window.font;
        font.bold = canvas->font.bold;
        // Kept: no underlining in the window.
        font.underline = canvas == &screen && window.font.underline;
        run.app.platform.textRenderer.DrawTurned(*canvas, canvas->penX, canvas->penY, font,
                                                 {height, width, angle10}, canvas->color, padded,
                                                 offsetsOn(*canvas));
    }
}

Flow DrawRotatedText(Run& run, double) {
    MovePensToMargin(run);
    const Rotated rotated = ReadRotated(run);
    if (run.KageKind != 0) {
        DrawRotatedUnderlay(run, rotated);
    }
    const platform::Canvas& canvas = CanvasInForce(run.app);
    TraceText(run, {canvas.penX, canvas.penY}, rotated.text);
    DrawRotatedPair(run, rotated.height, rotated.width, rotated.angle10, rotated.text,
                    [](const platform::Canvas&) { return std::vector{platform::Offset{}}; });
    SetLine(run, u" ");
    return Flow::GoOn;
}

}  // namespace macro

#include "macro/text_words.h"

#include <algorithm>
#include <iterator>

#include "macro/arguments.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"
#include "text/numbers.h"

namespace macro {

namespace {

constexpr platform::Color kPalette[] = {
    0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
    0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF,
};

constexpr double kSizeOfSlide = 20;  // points
constexpr int kColorOfSlide = 15;
constexpr TextView kFonts[] = {u"System", u"ＭＳ ゴシック", u"ＭＳ 明朝"};

/// The pens' height follows on the window's canvas without, in full screen with the origin.
void SetPenY(Run& run, int y) {
    run.app.windows.form1.Picture1.canvas.penY = y;
    run.app.windows.slidescreen.P2.canvas.penY = run.state.TextOriginY + y;
}

void SetColor(Run& run, platform::Color color) {
    run.TextForeColor = color;
    for (platform::Canvas* canvas : Canvases(run.app)) {
        canvas->color = color;
    }
}

template <class Value>
void SetFont(Run& run, Value platform::Font::*part, Value value) {
    for (platform::Canvas* canvas : Canvases(run.app)) {
        canvas->font.*part = value;
    }
}

/// 1 on, 0 off; anything else changes nothing.
void SetSwitch(Run& run, bool platform::Font::*part, double value) {
    if (value == 0 || value == 1) {
        SetFont(run, part, value == 1);
    }
}

/// Takes the place of a moving word's line: the word named reads its number after '='.
Flow Rewrite(Run& run, TextView word, double sum) {
    SetLine(run, Text(word) + u" =" + text::Str(sum));
    run.ArgStart = run.MacroLine.find(u'=') + 2;
    return Flow::GoOn;
}

}  // namespace

std::array<platform::Canvas*, 2> Canvases(Application& app) {
    return {&app.windows.slidescreen.P2.canvas, &app.windows.form1.Picture1.canvas};
}

platform::Color QBColor(int index) {
    return kPalette[std::clamp(index, 0, 15)];
}

void ResetTextOfSlide(Run& run) {
    for (platform::Canvas* canvas : Canvases(run.app)) {
        canvas->font = {Text(kFonts[1]), kSizeOfSlide, false, false, false};
        canvas->color = QBColor(kColorOfSlide);
    }
    MovePensToMargin(run);
    SetPenY(run, 0);
}

Flow SetRgb(Run& run, double) {
    const auto fields = CallFields(run.MacroLineUpper, 3);
    int parts[3];
    for (size_t i = 0; i < 3; ++i) {
        parts[i] =
            static_cast<int>(std::clamp(text::RoundHalfEven(NumberField(fields, i)), 0.0, 255.0));
    }
    SetColor(run, platform::Rgb(parts[0], parts[1], parts[2]));
    return Flow::GoOn;
}

Flow SetBorderColor(Run& run, double index) {
    run.state.BorderColorIndex = static_cast<int16_t>(index);
    return Flow::GoOn;
}

Flow SetLineSpace(Run& run, double pixels) {
    run.state.LineSpaceExtra = static_cast<int16_t>(pixels);
    return Flow::GoOn;
}

Flow SetTab(Run& run, double columns) {
    run.TabWidth = static_cast<int>(columns);
    return Flow::GoOn;
}

Flow MoveX(Run& run, double pixels) {
    return Rewrite(run, u"CURRENTX", pixels + run.CurrentXValue);
}

Flow MoveY(Run& run, double pixels) {
    return Rewrite(run, u"CURRENTY", pixels + run.app.windows.form1.Picture1.canvas.penY);
}

Flow SetTextOrigin(Run& run, double origin) {
    model::ShowState& state = run.state;
    if (origin == 0 || origin == 1) {
        model::SetTextOriginOfRun(state, static_cast<int16_t>(origin));
        state.TextOriginX = origin == 0 ? state.PictureX : 0;
        state.TextOriginY = origin == 0 ? state.PictureY : 0;
    }
    run.CurrentXValue = 0;
    MovePensToMargin(run);
    // Kept: here, and here only, the window's canvas takes the offset too.
    for (platform::Canvas* canvas : Canvases(run.app)) {
        canvas->penY = state.TextOriginY;
    }
    return Flow::GoOn;
}

Flow SetFontName(Run& run, double) {
    const TextView name = Quoted(run.MacroLine);
    if (!name.empty()) {
        SetFont(run, &platform::Font::name, Text(name));
    }
    return Flow::GoOn;
}

Flow SetFontItalic(Run& run, double on) {
    SetSwitch(run, &platform::Font::italic, on);
    return Flow::GoOn;
}

Flow SetFontBold(Run& run, double on) {
    SetSwitch(run, &platform::Font::bold, on);
    return Flow::GoOn;
}

Flow SetFontUnderline(Run& run, double on) {
    SetSwitch(run, &platform::Font::underline, on);
    return Flow::GoOn;
}

Flow SetQBColor(Run& run, double index) {
    SetColor(run, QBColor(static_cast<int>(index)));
    return Flow::GoOn;
}

Flow SetFontSize(Run& run, double points) {
    SetFont(run, &platform::Font::sizePoints, points);
    return Flow::GoOn;
}

Flow SetFontNo(Run& run, double number) {
    if (number >= 0 && number < std::size(kFonts)) {
        SetFont(run, &platform::Font::name, Text(kFonts[static_cast<size_t>(number)]));
    }
    return Flow::GoOn;
}

Flow SetCurrentX(Run& run, double pixels) {
    run.CurrentXValue = static_cast<int>(pixels);
    return Flow::GoOn;
}

Flow SetCurrentY(Run& run, double pixels) {
    SetPenY(run, static_cast<int>(pixels));
    return Flow::GoOn;
}

Flow SetKage(Run& run, double kind) {
    run.KageKind = static_cast<int>(kind);
    return Flow::GoOn;
}

Flow SetZureX(Run& run, double pixels) {
    run.ZureX = static_cast<int>(pixels);
    return Flow::GoOn;
}

Flow SetZureY(Run& run, double pixels) {
    run.ZureY = static_cast<int>(pixels);
    return Flow::GoOn;
}

Flow SetDelay(Run& run, double seconds) {
    run.DelayMs = static_cast<int>(text::Int(1000 * seconds + 0.1));
    return Flow::GoOn;
}

}  // namespace macro

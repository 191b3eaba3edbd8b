#include "macro/grad_text.h"

#include <algorithm>
#include <array>

#include "macro/arguments.h"
#include "macro/printing.h"
#include "macro/text_words.h"
#include "text/numbers.h"

namespace macro {

namespace {

constexpr size_t kChannels = 3;
constexpr size_t kNumbers = 2 * kChannels;

struct Ramp {
    std::array<int, kChannels> channels, steps;
};

/// What follows the sixth comma up to the closing quote, else up to the last ')'; without the
/// quotes.
Text GradText(TextView line) {
    size_t start = 0;
    for (size_t comma = 0; comma < kNumbers; ++comma) {
        start = line.find(u',', start) + 1;
        if (start == 0) {
            return {};
        }
    }
    TextView rest = line.substr(start);
    const size_t first = rest.find_first_not_of(u' ');
    if (first != TextView::npos && rest[first] == u'"') {
        rest.remove_prefix(first + 1);
        if (const size_t closing = rest.find(u'"'); closing != TextView::npos) {
            return Text(rest.substr(0, closing));
        }
    }
    return Text(WithoutLineEnd(rest.substr(0, rest.rfind(u')'))));
}

/// Steps are rounded down, so that a falling ramp ends at or below its last colour.
Ramp ReadRamp(TextView line, size_t length) {
    const auto fields = CallFields(line, kNumbers + 1);
    std::array<double, kNumbers> numbers;
    for (size_t i = 0; i < kNumbers; ++i) {
        numbers[i] = std::clamp(text::RoundHalfEven(NumberField(fields, i)), 0.0, 255.0);
    }
    Ramp ramp;
    for (size_t i = 0; i < kChannels; ++i) {
        const double way = numbers[i + kChannels] - numbers[i];
        ramp.channels[i] = static_cast<int>(numbers[i]);
        ramp.steps[i] = static_cast<int>(text::Int(way / static_cast<double>(length)));
    }
    return ramp;
}

/// Two code units where they belong together.
std::vector<TextView> Characters(TextView text) {
    std::vector<TextView> characters;
    for (size_t i = 0; i < text.size();) {
        const bool high = text[i] >= 0xD800 && text[i] < 0xDC00;
        const bool low = i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000;
        characters.push_back(text.substr(i, high && low ? 2 : 1));
        i += characters.back().size();
    }
    return characters;
}

void PrintCharacter(Run& run, Ramp& ramp, TextView character) {
    DrawUnderlay(run, character);
    // Kept: the step comes before the print, so the first character already has one.
    for (size_t i = 0; i < kChannels; ++i) {
        ramp.channels[i] = std::clamp(ramp.channels[i] + ramp.steps[i], 0, 255);
    }
    const auto [red, green, blue] = ramp.channels;
    for (platform::Canvas* canvas : Canvases(run.app)) {
        canvas->color = platform::Rgb(red, green, blue);
        PrintAtPen(run, *canvas, character);
        MovePen(canvas->penX, run.app.platform.textRenderer.Measure(canvas->font, character).width);
    }
}

}  // namespace

Flow DrawGradText(Run& run, double) {
    MovePensToMargin(run);
    const Text whole = Printable(GradText(run.MacroLine));
    const std::vector<TextView> characters = Characters(whole);
    if (characters.empty()) {
        return Flow::GoOn;
    }
    Ramp ramp = ReadRamp(run.MacroLineUpper, characters.size());
    const platform::Offset start = {CanvasInForce(run.app).penX, CanvasInForce(run.app).penY};
    for (const TextView character : characters) {
        PrintCharacter(run, ramp, character);
    }
    TraceText(run, start, whole);
    return Flow::GoOn;
}

}  // namespace macro

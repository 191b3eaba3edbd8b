#include "picture/overlay.h"

#include <array>

#include "text/numbers.h"

namespace picture {

namespace {

using platform::Rgb;

// In the order of the menu: dark grey, light grey, black, and the pale red, brown, yellow, green,
// cyan, blue, pink.
constexpr std::array<platform::Color, 10> kGroundColors{
    Rgb(0x80, 0x80, 0x80), Rgb(0xC0, 0xC0, 0xC0), Rgb(0x00, 0x00, 0x00), Rgb(0xFF, 0xC0, 0xC0),
    Rgb(0xFF, 0xE0, 0xC0), Rgb(0xFF, 0xFF, 0xC0), Rgb(0xC0, 0xFF, 0xC0), Rgb(0xC0, 0xFF, 0xFF),
    Rgb(0xC0, 0xC0, 0xFF), Rgb(0xFF, 0xC0, 0xFF)};

int HexPair(TextView digits) {
    return static_cast<int>(text::SafeNumber(Text(u"&H") + Text(digits)));
}

}  // namespace

platform::Color OverlayBackground(const model::ShowState& state) {
    const Text& digits = state.OverlayBackText;
    if (!digits.empty()) {
        return Rgb(HexPair(text::Left(digits, 2)), HexPair(text::Mid(digits, 3, 2)),
                   HexPair(text::Right(digits, 2)));
    }
    const int index = state.OverlayBackColor;
    return index >= 0 && index < static_cast<int>(kGroundColors.size())
               ? kGroundColors[static_cast<size_t>(index)]
               : Rgb(0, 0, 0);
}

void ApplyOverlayBackground(Application& app) {
    const auto color = static_cast<int>(OverlayBackground(app.state));
    model::Slidescreen& slidescreen = app.windows.slidescreen;
    for (model::PictureBox* layer : {&slidescreen.P2, &slidescreen.P3, &slidescreen.P4}) {
        layer->BackColor = color;
        layer->Cls();
    }
}

void ResetCanvasGround(Application& app) {
    if (app.state.OverlayMode == 0) {
        app.windows.slidescreen.P2.BackColor = 0;
        app.windows.slidescreen.P2.Cls();
    } else {
        ApplyOverlayBackground(app);
    }
}

void ReprocessPreviousPicture(Application&) {}

void DrawOverlapFrame(Application&) {}

}  // namespace picture

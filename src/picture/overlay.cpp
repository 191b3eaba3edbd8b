#include "picture/overlay.h"

#include <array>

#include "model/picture_controls.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_screen.h"
#include "picture/effect_context.h"
#include "picture/screen.h"
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

enum class Muting { None, Gray, TwoLevels, Mirror, Mosaic };

constexpr int kMosaicBlock = 12;  // pixels
constexpr int16_t kModeByChance = 4;

/// By OverlayMode; a mode that no menu offers mutes nothing.
constexpr std::array<Muting, 4> kMutingOfMode{Muting::None, Muting::None, Muting::Gray,
                                              Muting::TwoLevels};

// By the number drawn, 0 to 5: the last comes a little less often.
constexpr double kChanceRange = 5.9;
constexpr std::array<Muting, 6> kMutingOfChance{Muting::None, Muting::TwoLevels, Muting::Mirror,
                                                Muting::None, Muting::Mosaic,    Muting::Mirror};

Muting ChooseMuting(Application& app) {
    const int16_t mode = app.state.OverlayMode;
    if (mode == kModeByChance) {
        return kMutingOfChance.at(
            static_cast<size_t>(text::Int(app.platform.loop.Rnd() * kChanceRange)));
    }
    return mode >= 0 && mode < static_cast<int16_t>(kMutingOfMode.size())
               ? kMutingOfMode[static_cast<size_t>(mode)]
               : Muting::None;
}

void Mute(platform::ImagingControl& lead, Muting muting) {
    switch (muting) {
        case Muting::None:
            break;
        case Muting::Gray:
            lead.GrayScale();
            break;
        case Muting::TwoLevels:
            lead.SetColorResolution(1, 1, 1, 0);
            break;
        case Muting::Mirror:
            lead.Reverse();
            break;
        case Muting::Mosaic:
            lead.Mosaic(kMosaicBlock);
            break;
    }
}

void LayGround(Application& app, platform::Color color) {
    model::Slidescreen& slidescreen = app.windows.slidescreen;
    for (model::PictureBox* layer : {&slidescreen.P2, &slidescreen.P3, &slidescreen.P4}) {
        layer->BackColor = static_cast<int>(color);
        layer->Cls();
    }
    app.state.PreviousPictureOnScreen = 0;
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

void FollowGround(Application& app) {
    if (app.state.OverlayMode != 0) {
        SizeLayers(app);
    }
    ResetCanvasGround(app);
}

void ResetCanvasGround(Application& app) {
    LayGround(app, app.state.OverlayMode == 0 ? 0 : OverlayBackground(app.state));
}

void ReprocessPreviousPicture(Application& app) {
    if (app.state.PreviousPictureOnScreen != 1 || app.state.EffectDcValid != 1) {
        return;
    }
    const Muting muting = ChooseMuting(app);
    if (muting != Muting::None) {
        Mute(*app.windows.form4.Lead1.imaging, muting);
        RedrawProcessedPicture(app);
    }
}

void RedrawProcessedPicture(Application& app) {
    model::ShowState& state = app.state;
    model::PictureBox& holder = app.windows.form4.Picture1;
    model::Slidescreen& slidescreen = app.windows.slidescreen;
    platform::ImagingControl& lead = *app.windows.form4.Lead1.imaging;
    if (!lead.Holds()) {
        return;
    }
    ReleaseEffectContext(app);
    lead.SetColorResolution(24, 4, 0, 0);
    holder.SetPicture(lead.Picture(), lead.HeldSize());
    app.windows.form1.Picture1.SetPictureOf(holder);
    if (state.FullScreenActive != 1) {
        return;
    }
    if (state.OverlayMode == 0 && state.TextOriginScreen == 1) {
        slidescreen.P2.SetPicture(nullptr);
    }
    app.platform.loop.PumpEvents();
    // A context that a closed window left would pass for a picture on the screen.
    if (state.FullScreenActive != 1) {
        return;
    }
    CreateEffectContext(app);
    for (model::PictureBox* layer : {&slidescreen.P2, &slidescreen.P3, &slidescreen.P4}) {
        CopyPicture(app, *layer,
                    {state.PictureX, state.PictureY, holder.ScaleWidth(), holder.ScaleHeight()});
    }
}

void DrawOverlapFrame(Application& app) {
    const model::ShowState& state = app.state;
    const model::PictureBox& picture = app.windows.form4.Picture1;
    if (state.OverlayMode <= 0 || state.OverlayFrameOff != 0 || !picture.Picture()) {
        return;
    }
    const int x = state.PictureX;
    const int y = state.PictureY;
    const int pw = picture.ScaleWidth();
    const int ph = picture.ScaleHeight();
    // Inner line before outer; the dark sides come last and take the corners they share.
    const platform::Rect bright[]{{x - 1, y - 1, pw + 2, 1},
                                  {x - 2, y - 2, pw + 4, 1},
                                  {x - 1, y - 1, 1, ph + 2},
                                  {x - 2, y - 2, 1, ph + 4}};
    const platform::Rect dark[]{{x + pw, y - 1, 1, ph + 2},
                                {x + pw + 1, y - 2, 1, ph + 4},
                                {x - 1, y + ph, pw + 2, 1},
                                {x - 2, y + ph + 1, pw + 4, 1}};
    platform::Canvas& canvas = app.windows.slidescreen.P2.canvas;
    for (const platform::Rect& line : bright) {
        canvas.BitBlt(line.x, line.y, line.width, line.height, nullptr, 0, 0,
                      platform::RasterOp::Whiteness);
    }
    for (const platform::Rect& line : dark) {
        canvas.BitBlt(line.x, line.y, line.width, line.height, nullptr, 0, 0,
                      platform::RasterOp::Blackness);
    }
}

}  // namespace picture

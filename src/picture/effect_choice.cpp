#include "picture/effect_choice.h"

#include "model/picture_controls.h"
#include "model/windows/picture_holder.h"
#include "picture/effect_plan.h"
#include "picture/screen.h"
#include "text/numbers.h"

namespace picture {

namespace {

constexpr int16_t kFromCentre = 4;
constexpr int16_t kFromOutside = 5;
constexpr int kErasesAsShown = 11;

int32_t Offset(int roomTwips, int pictureTwips, double factor) {
    const double pixels = (roomTwips - pictureTwips) * factor / platform::kTwipsPerPixel;
    return text::ToInt32(pixels).value_or(0);
}

/// `counter` is the next effect of the sequence.
int16_t Resolve(Application& app, int16_t setting, int16_t& counter) {
    if (setting == kRandomEffect) {
        // Kept: the ends of the range come up less often than the rest.
        return static_cast<int16_t>(text::Int(app.platform.loop.Rnd() * 8 + 0.8));
    }
    if (setting == kSequentialEffect) {
        const int16_t chosen = counter >= 0 && counter < kEffectCount ? counter : int16_t{0};
        counter = static_cast<int16_t>(chosen + 1);
        return chosen;
    }
    return setting;
}

int16_t Mirrored(int16_t effect) {
    return effect == kFromCentre ? kFromOutside : effect == kFromOutside ? kFromCentre : effect;
}

}  // namespace

void PlacePicture(Application& app) {
    model::ShowState& state = app.state;
    const platform::Size canvas = CanvasSize(app);
    const model::PictureBox& picture = app.windows.form4.Picture1;
    double xFactor = 0.5;
    double yFactor = 0.5;
    if (state.PicturePositionFixed == 1) {
        xFactor = state.PicturePositionXFactor;
        yFactor = state.PicturePositionYFactor;
    } else if (state.PicturePosition != 0) {
        xFactor = app.platform.loop.Rnd();
        yFactor = app.platform.loop.Rnd();
    }
    state.PictureX = Offset(canvas.width * platform::kTwipsPerPixel, picture.Width, xFactor);
    state.PictureY = Offset(canvas.height * platform::kTwipsPerPixel, picture.Height, yFactor);
    state.PlacedWidthPx = picture.ScaleWidth();
    state.PlacedHeightPx = picture.ScaleHeight();
    state.PreviousPictureOnScreen = 1;
}

void ChooseShowEffect(Application& app) {
    model::ShowState& state = app.state;
    state.CurrentShowEffect = Resolve(app, state.ShowEffect, state.NextShowEffect);
}

void ChooseEraseEffect(Application& app) {
    model::ShowState& state = app.state;
    state.CurrentEraseEffect = state.EraseEffect == kErasesAsShown
                                   ? Mirrored(state.CurrentShowEffect)
                                   : Resolve(app, state.EraseEffect, state.NextEraseEffect);
}

}  // namespace picture

#include "macro/setting_words.h"

#include <algorithm>

#include "document/settings_to_controls.h"
#include "macro/arguments.h"
#include "macro/keywords.h"
#include "model/effect_speed.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "text/numbers.h"

namespace macro {

namespace {

constexpr size_t kColorDigits = 6;
constexpr int16_t kNoShowEffect = 11, kNoEraseEffect = 12;
constexpr int kOverlayModes = 5;
constexpr int kLargestOverlaySize = 6;
constexpr size_t kNumberDigits = 5;

int16_t Whole(double value) {
    return static_cast<int16_t>(text::Int(value));
}

/// Part of a place in percent, as 0 to 1.
double Factor(TextView percent) {
    return std::clamp(text::SafeNumber(percent) / 100, 0.0, 1.0);
}

/// The effect that the number stands for: 0 is `none`, n the one before.
int16_t Effect(double number, int16_t none) {
    const int16_t whole = static_cast<int16_t>(text::RoundHalfEven(number));
    return whole == 0 ? none : static_cast<int16_t>(whole - 1);
}

}  // namespace

Flow SetBorderless(Run& run, double value) {
    run.state.OverlayFrameOff = static_cast<int16_t>(value);
    return Flow::GoOn;
}

Flow SetBackColor(Run& run, double) {
    const TextView color = Quoted(run.MacroLine);
    if (!color.empty()) {
        run.state.OverlayBackText = color.size() == kColorDigits ? Text(color) : Text(u"000000");
        run.state.ResetScreenOnce = 1;
    }
    return Flow::GoOn;
}

Flow SetPictureScale(Run& run, double percent) {
    run.state.PictureScale = percent / 100;
    return Flow::GoOn;
}

Flow SetInterval(Run& run, double seconds) {
    run.app.windows.form1.Timer1.Interval = static_cast<int>(text::RoundHalfEven(seconds * 1000));
    run.state.SlideIntervalSec = static_cast<int32_t>(text::RoundHalfEven(seconds));
    return Flow::GoOn;
}

Flow SetPosition(Run& run, double) {
    model::ShowState& state = run.state;
    const Text argument = text::Mid(run.MacroLineUpper, run.ArgStart, 8);
    const size_t point = argument.find(u'.');
    if (point == Text::npos) {
        const auto mode = text::ToInt16(NumberArgument(run, kNumberDigits));
        return mode ? SetPictureRandom(run, *mode) : Flow::Failed;
    }
    state.PicturePositionXFactor = Factor(TextView(argument).substr(0, point));
    state.PicturePositionYFactor = Factor(TextView(argument).substr(point + 1));
    state.PicturePositionFixed = 1;
    return Flow::GoOn;
}

Flow SetPictureRandom(Run& run, double mode) {
    if (mode == 0 || mode == 1) {
        run.state.PicturePosition = static_cast<int16_t>(mode);
        run.app.windows.form1.mnuHICHI.Check(run.state.PicturePosition);
    }
    run.state.PicturePositionFixed = 0;
    return Flow::GoOn;
}

Flow SetOverlaySize(Run& run, double size) {
    if (size <= kLargestOverlaySize) {
        run.state.OverlaySize = Whole(size);
        run.app.windows.form1.mnuKASAS.Check(run.state.OverlaySize);
    }
    return Flow::GoOn;
}

Flow SetOverlayMode(Run& run, double mode) {
    run.state.OverlayMode = static_cast<int16_t>(mode);
    if (mode >= 0 && mode < kOverlayModes) {
        run.app.windows.form1.mnuKASANE.Check(run.state.OverlayMode);
        document::FollowMenuVisibility(run.app);
        run.state.ResetScreenOnce = 1;
    }
    return Flow::GoOn;
}

Flow SetShowEffect(Run& run, double effect) {
    run.state.ShowEffect = Effect(effect, kNoShowEffect);
    run.app.windows.form1.mnuHKO.Check(run.state.ShowEffect);
    return Flow::GoOn;
}

Flow SetEraseEffect(Run& run, double effect) {
    run.state.EraseEffect = Effect(effect, kNoEraseEffect);
    run.app.windows.form1.mnuSYOUKO.Check(run.state.EraseEffect);
    return Flow::GoOn;
}

Flow SetShowSpeed(Run& run, double speed) {
    run.state.ShowEffectSpeed = Whole(speed);
    return Flow::GoOn;
}

Flow SetEraseSpeed(Run& run, double speed) {
    run.state.EraseEffectSpeed = Whole(speed);
    return Flow::GoOn;
}

Flow SetEffectSpeedFixed(Run& run, double mode) {
    model::ShowState& state = run.state;
    if (mode == 0 || mode == 1) {
        state.EffectSpeedFixed = static_cast<int16_t>(mode);
        run.app.windows.form1.mnuKSPSEL.Check(state.EffectSpeedFixed);
        document::FollowMenuVisibility(run.app);
    }
    // Also with another number: what is fixed goes back to its speed.
    if (state.EffectSpeedFixed != 0) {
        state.ShowEffectSpeed = model::kFixedEffectSpeed;
        state.EraseEffectSpeed = model::kFixedEffectSpeed;
    }
    return Flow::GoOn;
}

Flow SetSizeAdjust(Run& run, double mode) {
    if (mode != 0 && mode != 1 && mode != 2) {
        return Flow::GoOn;
    }
    model::Form4& form4 = run.app.windows.form4;
    if (mode != 0) {
        form4.Lead2.imaging->CopyFrom(*form4.Lead1.imaging);
    }
    run.state.SizeAdjust = mode == 0 ? 2 : static_cast<int16_t>(mode - 1);
    run.app.windows.form1.mnuSIZE.Check(run.state.SizeAdjust);
    return Flow::GoOn;
}

}  // namespace macro

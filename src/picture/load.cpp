#include "picture/load.h"

#include "document/main_caption.h"
#include "document/slide_rows.h"
#include "model/controls.h"
#include "model/picture_controls.h"
#include "model/windows/declared_windows.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_screen.h"
#include "picture/effect_context.h"
#include "picture/effects.h"
#include "picture/overlay.h"
#include "picture/screen.h"
#include "text/paths.h"

namespace picture {

namespace {

constexpr int kFailureTickMs = 10;
constexpr int kMinimised = 1;

platform::Size InTwips(platform::Size size) {
    return {size.width * platform::kTwipsPerPixel, size.height * platform::kTwipsPerPixel};
}

/// The preview is reckoned in its pixels.
platform::Scale ScaleOf(Application& app, bool fullScreen) {
    return fullScreen ? CanvasScale(app) : platform::Scale();
}

/// The rule for the settings of this moment. `randomFactor` matters for OverlaySize 5 only.
FitRule CurrentRule(Application& app, bool fullScreen, double randomFactor) {
    const model::ShowState& state = app.state;
    const model::PictureBox& preview = app.windows.form1.Picture1;
    FitRule rule;
    rule.fullScreen = fullScreen;
    rule.sizeAdjust = state.SizeAdjust;
    rule.overlayMode = state.OverlayMode;
    rule.overlaySize = state.OverlaySize;
    rule.pictureScale = state.PictureScale;
    rule.randomFactor = randomFactor;
    rule.areaTwips =
        fullScreen ? InTwips(CanvasSize(app)) : platform::Size{preview.Width(), preview.Height()};
    return rule;
}

/// The number is drawn only where the rule asks for it, so that settings without chance leave the
/// random sequence alone.
double DrawFactor(Application& app, bool fullScreen) {
    return fullScreen && app.state.OverlaySize == 5 ? app.platform.loop.Rnd() : 0.0;
}

void FitIntoHolder(Application& app, bool fullScreen) {
    model::Form4& form4 = app.windows.form4;
    platform::ImagingControl& lead = *form4.Lead1.imaging;
    const FitRule rule = CurrentRule(app, fullScreen, DrawFactor(app, fullScreen));
    const platform::Scale scale = ScaleOf(app, fullScreen);
    const auto fitted = FittedSize(rule, lead.HeldSize());
    if (fitted && scale.Plain()) {
        lead.Resize(fitted->width, fitted->height, 0);
    } else {
        const platform::Size size = fitted.value_or(lead.HeldSize());
        lead.ResizeTo(size, scale.ToPixels(size));
    }
    form4.Picture1.SetPicture(lead.Picture(), lead.HeldSize());
}

void ClearCanvasForPicture(Application& app) {
    if (app.state.OverlayMode != 0) {
        ReleaseEffectContext(app);
        return;
    }
    if (app.state.ResetScreenOnce == 0) {
        RunEraseEffect(app);
    }
    ReleaseEffectContext(app);
    ClearCanvas(app);
}

void ResetScreen(Application& app) {
    ClearCanvas(app);
    ResetCanvasGround(app);
    SizeLayers(app);
    app.state.ResetScreenOnce = 0;
}

}  // namespace

void ClearPreview(Application& app) {
    app.windows.form1.Picture1.SetPicture(nullptr);
}

bool LoadSlidePicture(Application& app) {
    model::ShowState& state = app.state;
    model::Windows& windows = app.windows;
    windows.form1.Picture3.Visible = false;
    windows.slidescreen.Picture2.Visible = false;

    const Text path = document::CompleteSlidePath(app, state.SlideIndex);
    state.CurrentName = app.platform.files.Dir(path);
    state.CurrentPath = path;
    if (state.FullScreenActive == 1) {
        windows.SetPointer(model::kPointerArrowBusy);
    }
    if (state.OverlayMode >= 2) {
        ReprocessPreviousPicture(app);
    }
    // Asked after the redraw, which pumps events: the window can be closed in it.
    const bool fullScreen = state.FullScreenActive == 1;
    platform::ImagingControl& lead = *windows.form4.Lead1.imaging;
    if (!lead.ReadInformation(path) || !lead.Load(path, FitForLoad(app, fullScreen))) {
        return false;
    }
    if (lead.BitsPerPixel() != 24) {
        lead.SetColorResolution(24, 4, 0, 0);
    }
    platform::ImagingControl& unscaled = *windows.form4.Lead2.imaging;
    if (state.SizeAdjust == 0 || state.SizeAdjust == 1 || state.OverlayMode >= 1) {
        unscaled.CopyFrom(lead);
    } else {
        unscaled.Clear();  // or a later fit would bring an older picture back
    }
    if (fullScreen) {
        ClearCanvasForPicture(app);
    }
    document::ShowSlideCaption(app);
    if (state.ResetScreenOnce == 1) {
        ResetScreen(app);
    }
    const platform::Size own = lead.HeldSize();
    state.PictureWidthPx = own.width;
    state.PictureHeightPx = own.height;
    state.PictureWidthTwips = own.width * platform::kTwipsPerPixel;
    state.PictureHeightTwips = own.height * platform::kTwipsPerPixel;
    // Asked again: the erase effect yields, and the window can be closed in it.
    FitIntoHolder(app, state.FullScreenActive == 1);
    SizePreview(app);
    windows.form1.Picture1.SetPictureOf(windows.form4.Picture1);
    return true;
}

platform::FitFunction FitForLoad(Application& app, bool fullScreen) {
    return [hint = CurrentRule(app, fullScreen, 1.0),
            scale = ScaleOf(app, fullScreen)](platform::Size own) {
        const auto fitted = FittedSize(hint, own);
        if (scale.Plain()) {
            return fitted.value_or(platform::Size{});
        }
        return scale.ToPixels(fitted.value_or(own));
    };
}

void HandleLoadFailure(Application& app) {
    model::ShowState& state = app.state;
    model::Form1& form1 = app.windows.form1;
    app.windows.form4.Picture1.SetPicture(nullptr);
    ClearPreview(app);
    app.windows.SetPointer(model::kPointerNormal);
    if (form1.WindowState == kMinimised || state.ShowAbort != 0) {
        return;
    }
    if (state.ListErrorDelete == 0) {
        const Text question = state.CurrentPath +
                              u"\r\n画像ファイルが読み込めません。"
                              u"\r\nスライドリストから削除して継続しますか？";
        const platform::Answer answer = app.platform.dialogs.Message(
            question, platform::kYesNoQuestion, u"画像ファイル読込エラー");
        if (answer != platform::Answer::Yes) {
            state.ShowAbort = 1;
            form1.Timer1.Interval = kFailureTickMs;
            return;
        }
    }
    app.windows.form5.Unload();
    document::RemoveSlide(app, state.SlideIndex);
    state.SlideIndex = static_cast<int16_t>(state.SlideIndex - 1);
    state.ResumeIndex = static_cast<int16_t>(state.SlideIndex - 1);
    if (state.SlideList(1).empty()) {
        app.platform.dialogs.Message(u"スライドリストに　画像ファイルが見つかりません。",
                                     platform::kExclamation, u"パラピコ");
        for (model::Button* button :
             {&form1.Command1, &form1.Command2, &form1.Command3, &form1.Command4}) {
            button->Enabled = false;
        }
        state.ShowAbort = 1;
    }
    form1.Timer1.Interval = kFailureTickMs;
}

void RefitHeldPicture(Application& app, bool fullScreen) {
    model::Form4& form4 = app.windows.form4;
    if (!form4.Lead1.imaging->Holds()) {
        return;
    }
    if (form4.Lead2.imaging->Holds()) {
        form4.Lead1.imaging->CopyFrom(*form4.Lead2.imaging);
    }
    FitIntoHolder(app, fullScreen);
    app.windows.form1.Picture1.SetPictureOf(form4.Picture1);
}

}  // namespace picture

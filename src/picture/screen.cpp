#include "picture/screen.h"

#include <algorithm>
#include <cmath>

#include "model/monitors.h"
#include "model/picture_controls.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_screen.h"

namespace picture {

namespace {

constexpr int kCanvasLines = 1080;
constexpr int kPreviewSideTwips = 600;
constexpr int kPreviewFrameTwips = 1450;

platform::Scale ScaleFor(const Application& app, platform::Size pixels) {
    if (!app.platform.settings.canvasOf1080Lines || pixels.Empty()) {
        return {pixels, pixels};
    }
    const double width = double(pixels.width) * kCanvasLines / pixels.height;
    return {{std::max(1, static_cast<int>(std::lround(width))), kCanvasLines}, pixels};
}

}  // namespace

platform::Size MonitorSizeTwips(Application& app) {
    const platform::Rect monitor = model::MonitorTwips(app, app.state.MonitorIndex);
    return {monitor.width, monitor.height};
}

platform::Scale CanvasScale(Application& app) {
    const platform::Size twips = MonitorSizeTwips(app);
    return ScaleFor(
        app, {twips.width / platform::kTwipsPerPixel, twips.height / platform::kTwipsPerPixel});
}

platform::Size CanvasSize(Application& app) {
    return CanvasScale(app).units;
}

platform::Rect PicturePlace(Application& app) {
    const model::ShowState& state = app.state;
    return app.windows.slidescreen.P2.canvas.Scaling().ToPixels(
        platform::Rect{state.PictureX, state.PictureY, state.PlacedWidthPx, state.PlacedHeightPx});
}

void CopyPicture(Application& app, model::PictureBox& layer, const platform::Rect& area) {
    if (!app.state.EffectDc) {
        return;
    }
    const platform::Scale& scale = layer.canvas.Scaling();
    const model::PictureBox& picture = app.windows.form4.Picture1;
    layer.canvas.Lay(scale.ToPixels(area), *app.state.EffectDc,
                     scale.ToPixels(platform::Rect{app.state.PictureX, app.state.PictureY,
                                                   picture.ScaleWidth(), picture.ScaleHeight()}));
}

void SizePreview(Application& app) {
    model::Form1& form1 = app.windows.form1;
    form1.Picture1.SetSize(
        std::max(0, form1.Width - kPreviewSideTwips),
        std::max(0, form1.Height - kPreviewFrameTwips - app.state.MainBottomMargin));
}

void ClearCanvas(Application& app) {
    app.windows.slidescreen.P2.SetPicture(nullptr);
    app.state.PreviousPictureOnScreen = 0;
}

void SizeLayers(Application& app) {
    model::Slidescreen& slidescreen = app.windows.slidescreen;
    const platform::Scale scale = ScaleFor(app, {slidescreen.Width / platform::kTwipsPerPixel,
                                                 slidescreen.Height / platform::kTwipsPerPixel});
    for (model::PictureBox* layer : {&slidescreen.P2, &slidescreen.P3, &slidescreen.P4}) {
        layer->Left = 0;
        layer->Top = 0;
        layer->SetSize(scale.units.width * platform::kTwipsPerPixel,
                       scale.units.height * platform::kTwipsPerPixel, scale.pixels);
    }
}

}  // namespace picture

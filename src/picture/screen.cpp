#include "picture/screen.h"

#include <algorithm>

namespace picture {

namespace {

constexpr int kPreviewSideTwips = 600;
constexpr int kPreviewFrameTwips = 1450;

}  // namespace

platform::Rect MonitorTwips(Application& app, int index) {
    const std::vector<platform::Rect> monitors = app.platform.monitors.Enumerate();
    const auto known = index >= 0 && static_cast<size_t>(index) < monitors.size()
                           ? static_cast<size_t>(index)
                           : size_t{0};
    const platform::Rect& pixels = monitors.at(known);
    constexpr int k = platform::kTwipsPerPixel;
    return {pixels.x * k, pixels.y * k, pixels.width * k, pixels.height * k};
}

platform::Size MonitorSizeTwips(Application& app) {
    const platform::Rect monitor = MonitorTwips(app, app.state.MonitorIndex);
    return {monitor.width, monitor.height};
}

void SizePreview(Application& app) {
    model::Form1& form1 = app.windows.form1;
    form1.Picture1.SetSize(
        std::max(0, form1.Width - kPreviewSideTwips),
        std::max(0, form1.Height - kPreviewFrameTwips - app.state.MainBottomMargin));
}

void SizeLayers(Application& app) {
    model::Slidescreen& slidescreen = app.windows.slidescreen;
    for (model::PictureBox* layer : {&slidescreen.P2, &slidescreen.P3, &slidescreen.P4}) {
        layer->Left = 0;
        layer->Top = 0;
        layer->SetSize(slidescreen.Width, slidescreen.Height);
    }
}

}  // namespace picture

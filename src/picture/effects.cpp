#include "picture/effects.h"

#include "picture/overlay.h"
#include "picture/screen.h"
#include "text/numbers.h"

namespace picture {

namespace {

int32_t Offset(int roomTwips, int pictureTwips, double factor) {
    const double pixels = (roomTwips - pictureTwips) * factor / platform::kTwipsPerPixel;
    return text::ToInt32(pixels).value_or(0);
}

void PlacePicture(Application& app) {
    const platform::Size monitor = MonitorSizeTwips(app);
    const model::PictureBox& picture = app.windows.form4.Picture1;
    double xFactor = 0.5;
    double yFactor = 0.5;
    if (app.state.PicturePosition != 0) {
        xFactor = app.platform.loop.Rnd();
        yFactor = app.platform.loop.Rnd();
    }
    app.state.PictureX = Offset(monitor.width, picture.Width, xFactor);
    app.state.PictureY = Offset(monitor.height, picture.Height, yFactor);
}

}  // namespace

void RunShowEffect(Application& app) {
    PlacePicture(app);
    app.state.EffectStop = 0;
    if (app.state.EffectDc) {
        const platform::Bitmap& source = *app.state.EffectDc;
        app.windows.slidescreen.P2.canvas.BitBlt(app.state.PictureX, app.state.PictureY,
                                                 source.width, source.height, &source, 0, 0);
    }
    DrawOverlapFrame(app);
}

void RunEraseEffect(Application&) {}

void ReleaseEffectContext(Application& app) {
    app.state.EffectDc.reset();
    app.state.EffectDcValid = 0;
}

void CreateEffectContext(Application& app) {
    app.state.EffectDc = app.windows.form4.Picture1.Picture();
    app.state.EffectDcValid = 1;
}

}  // namespace picture

#include "macro/run.h"

#include "model/picture_controls.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"

namespace macro {

namespace {

constexpr int kWaitPassMs = 20;
constexpr double kSecondsOfDay = 86400;

}  // namespace

void MovePensToMargin(Run& run) {
    run.app.windows.slidescreen.P2.canvas.penX = run.state.TextOriginX + run.CurrentXValue;
    run.app.windows.form1.Picture1.canvas.penX = run.CurrentXValue;
}

void WaitOnePass(Application& app) {
    app.platform.loop.PumpEvents();
    app.platform.loop.Sleep(kWaitPassMs);
}

void WaitSeconds(Run& run, double seconds) {
    model::ShowState& state = run.state;
    platform::EventLoop& loop = run.app.platform.loop;
    const double start = loop.Timer();
    double offset = 0;
    while (loop.Timer() + offset < start + seconds && state.FullScreenClosed == 0) {
        WaitOnePass(run.app);
        if (state.MacroJumpChosen == 1 || Stopping(state)) {
            break;
        }
        if (loop.Timer() < start) {
            offset = kSecondsOfDay;
        }
    }
    if (state.FullScreenClosed == 1) {
        state.MacroButtonsShown = 0;
        state.MacroJumpChosen = 0;
    }
}

void ShowPointer(Application& app) {
    app.windows.ForceCursor(true);
    app.state.MacroCursorHidden = 0;
}

void CopyLayer(model::PictureBox& target, const model::PictureBox& source) {
    target.canvas.BitBlt(0, 0, source.ScaleWidth(), source.ScaleHeight(), &source.canvas.Pixels(),
                         0, 0);
}

void RestoreBackground(Application& app, const platform::Rect& area) {
    model::Slidescreen& screen = app.windows.slidescreen;
    screen.P2.canvas.BitBlt(area.x, area.y, area.width, area.height, &screen.P3.canvas.Pixels(),
                            area.x, area.y);
}

void FocusScreen(Application& app) {
    if (InFullScreen(app.state)) {
        app.windows.slidescreen.P2.SetFocus();
    }
}

}  // namespace macro

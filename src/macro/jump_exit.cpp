#include "macro/jump_exit.h"

#include "macro/buttons.h"
#include "macro/cutouts.h"

namespace macro {

namespace {

constexpr int kNextSlideMs = 100;

}  // namespace

void LeaveSlide(Run& run) {
    Application& app = run.app;
    model::ShowState& state = run.state;
    HideButtons(app);
    app.platform.loop.PumpEvents();
    if (InFullScreen(state) && (state.MacroNextPressed != 0 || state.MacroBackPressed != 0)) {
        RestoreBackground(app, PlaceOf(app.windows.slidescreen.Command1));
        RestoreBackground(app, PlaceOf(app.windows.slidescreen.Command2));
    }
    app.platform.loop.PumpEvents();
    RemoveObjects(app);
    state.PicPbType = 0;
    app.windows.form1.Timer1.Interval = kNextSlideMs;
    state.MacroEndShow = 1;
    if (state.SlideIndex < 0) {
        state.SlideIndex = 0;
    }
    if (run.clampsJump && state.SlideIndex >= state.SlideListEnd - 1) {
        // The transport's own step forward then lands on the last slide.
        state.SlideIndex = static_cast<int16_t>(state.SlideListEnd - 2);
    }
}

}  // namespace macro

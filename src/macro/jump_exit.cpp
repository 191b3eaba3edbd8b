#include "macro/jump_exit.h"

#include "macro/buttons.h"
#include "macro/cutouts.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"

namespace macro {

namespace {

constexpr int kNextSlideMs = 100;

/// Events run between the pieces, so that they vanish one by one.
void RemoveObjectsOneByOne(Application& app) {
    model::ShowState& state = app.state;
    const auto menus = MenuButtons(app.windows.slidescreen);
    for (int index = 0; index <= kLastCutout && !model::StepOutlived(state); ++index) {
        const auto i = static_cast<size_t>(index);
        if (InFullScreen(state) && state.MenuActive[i] == 1 && i >= 1 && i <= menus.size()) {
            RestoreBackground(app, PlaceOf(*menus[i - 1]));
        }
        RemoveObject(app, index);
        state.PicPbType = 0;
        app.platform.loop.PumpEvents();
    }
}

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
    RemoveObjectsOneByOne(app);
    if (model::StepOutlived(state)) {
        return;
    }
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

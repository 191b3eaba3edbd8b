#include "authoring/slide_list/run_from_selection.h"

#include <algorithm>

#include "authoring/slide_list/commit.h"
#include "authoring/slide_list/linked_work.h"
#include "authoring/slide_list/selection.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "playback/full_screen.h"
#include "playback/schedule.h"
#include "playback/transport.h"

namespace authoring {

namespace {

/// The show gets the rows and is to begin at the current one. False, and nothing happens, without
/// rows.
bool PrepareRun(Application& app) {
    const model::ListBox& list = app.windows.form3.List1;
    if (list.ListCount() == 0) {
        return false;
    }
    const int current = std::max(0, RowInSight(app));
    StopLinkedWork(app);
    CommitSlideList(app);
    app.state.JumpTarget = static_cast<int16_t>(current);
    app.state.JumpRequested = 1;
    app.state.PreviousPictureOnScreen = 0;
    playback::TakeShowDate(app);
    return true;
}

/// The full screen goes back to this window, whose coming clears the flag of the return. One that
/// did not come up goes nowhere.
void Command21_Click(Application& app) {
    if (PrepareRun(app)) {
        app.state.ReturnToSlideList = 1;
        playback::Command4_Click(app);
        app.state.JumpRequested = 0;
        if (!app.windows.slidescreen.Loaded) {
            app.state.ReturnToSlideList = 0;
        }
    }
}

void Command22_Click(Application& app) {
    if (PrepareRun(app)) {
        playback::Command1_Click(app);
        app.state.JumpRequested = 0;
    }
}

}  // namespace

void AttachRunFromSelection(Application& app) {
    app.windows.form3.Command21.Click = [&app] { Command21_Click(app); };
    app.windows.form3.Command22.Click = [&app] { Command22_Click(app); };
}

}  // namespace authoring

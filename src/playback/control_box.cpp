#include "playback/control_box.h"

#include <algorithm>

#include "model/monitors.h"
#include "model/windows/control_box.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "picture/load.h"
#include "picture/screen.h"
#include "playback/go_on.h"
#include "playback/link_run.h"
#include "playback/run.h"

namespace playback {

namespace {

bool Refused(Application& app) {
    return app.windows.Pointer() != model::kPointerNormal;
}

void Close_Click(Application& app) {
    NoteInput(app);
    if (app.windows.form3.Timer1.Enabled || app.state.MacroWaitClick == 1 || Refused(app)) {
        return;
    }
    CloseShow(app);
}

void Start_Click(Application& app) {
    model::ShowState& state = app.state;
    NoteInput(app);
    if (Refused(app) || state.StepBusy == 1 || RefusedByListWindow(app)) {
        return;
    }
    ResetRun(app);
    picture::ClearPreview(app);
    state.SlideIndex = static_cast<int16_t>(state.SlideIndex + 1);
    EnableShowMenus(app, false);
    const bool atEnd = state.SlideList(state.SlideIndex).empty();
    if (atEnd && state.LinkRunning != 1 && state.RepeatFlag == 1) {
        CloseShow(app);
        return;
    }
    SetBoxButtons(app, {.close = true, .pause = true});
    if (!atEnd) {
        StepAndGoOn(app, Cause::Box);
    } else if (state.LinkRunning == 1 && state.SlideList(1).empty()) {
        PassEmptyDocument(app);
    } else {
        StartByTick(app, state.LinkRunning != 1);
    }
}

bool HasDocumentBefore(const model::ShowState& state) {
    return state.LinkRunning == 1 && state.LinkIndex > 2;
}

bool HasDocumentAfter(const model::ShowState& state) {
    return state.LinkRunning == 1 && state.LinkIndex < state.LinkEnd;
}

/// Enables previous and next by the place in the list; the main window's too, from which the box
/// takes them whenever it comes up.
void FollowPlace(Application& app) {
    const model::ShowState& state = app.state;
    const bool previous = state.SlideIndex > 1 || HasDocumentBefore(state);
    const bool next = state.SlideIndex < state.SlideListEnd - 1 || HasDocumentAfter(state);
    app.windows.form1.Command5.Enabled = previous;
    app.windows.form1.Command7.Enabled = next;
    app.windows.slidescreen2.Command4.Enabled = previous;
    app.windows.slidescreen2.Command5.Enabled = next;
}

void Pause_Click(Application& app) {
    model::ShowState& state = app.state;
    NoteInput(app);
    Command2_Click(app);
    if (state.ShowRunning == 1 || !app.windows.form1.Command1.Enabled) {
        return;
    }
    SetBoxButtons(app, {.close = true, .start = true});
    FollowPlace(app);
}

void StepInBox(Application& app, bool (*move)(Application&)) {
    NoteInput(app);
    if (Refused(app) || app.state.StepBusy == 1) {
        return;
    }
    const Outcome outcome = StepByHand(app, [&] { return move(app); });
    if (outcome != Outcome::Over && app.state.StopRequest != 1) {
        FollowPlace(app);
    }
}

/// Before the first slide of all there is place 0, where nothing is shown.
bool MoveBack(Application& app) {
    model::ShowState& state = app.state;
    if (state.SlideIndex <= 1 && HasDocumentBefore(state)) {
        return TurnToDocument(app, -1);
    }
    state.SlideIndex = static_cast<int16_t>(std::max(state.SlideIndex - 1, 0));
    return state.SlideIndex > 0;
}

bool MoveOn(Application& app) {
    model::ShowState& state = app.state;
    if (state.SlideIndex >= state.SlideListEnd - 1) {
        return HasDocumentAfter(state) && TurnToDocument(app, 1);
    }
    state.SlideIndex = static_cast<int16_t>(state.SlideIndex + 1);
    return true;
}

void Form_Activate(Application& app) {
    model::Form1& form1 = app.windows.form1;
    SetBoxButtons(app, {.close = form1.Command3.Enabled,
                        .start = form1.Command1.Enabled,
                        .pause = form1.Command2.Enabled,
                        .previous = form1.Command5.Enabled,
                        .next = form1.Command7.Enabled});
    PlaceControlBox(app);
}

}  // namespace

void NoteInput(Application& app) {
    app.state.UserInputSeen = 1;
    app.state.EffectStop = 1;
}

void BringUpControlBox(Application& app) {
    if (app.state.ControlBoxFlag == 0 && app.state.FullScreenClosed == 0 &&
        app.windows.slidescreen.Loaded) {
        app.windows.slidescreen2.Show();
    }
}

void PlaceControlBox(Application& app) {
    model::Slidescreen2& box = app.windows.slidescreen2;
    const platform::Rect monitor = model::MonitorTwips(app, app.state.MonitorIndex);
    box.Left = monitor.x + monitor.width - box.Width;
    box.Top = app.state.ControlBoxPos == 0 ? monitor.y : monitor.y + monitor.height - box.Height;
}

void AttachControlBox(Application& app) {
    model::Slidescreen2& box = app.windows.slidescreen2;
    box.OnQueryUnload = [](bool& stay) { stay = true; };
    box.OnActivate = [&app] { Form_Activate(app); };
    box.Command1.Click = [&app] { Close_Click(app); };
    box.Command2.Click = [&app] { Start_Click(app); };
    box.Command3.Click = [&app] { Pause_Click(app); };
    box.Command4.Click = [&app] { StepInBox(app, MoveBack); };
    box.Command5.Click = [&app] { StepInBox(app, MoveOn); };
}

}  // namespace playback

#include "playback/full_screen.h"

#include <algorithm>
#include <tuple>

#include "document/slide_rows.h"
#include "macro/cutouts.h"
#include "macro/macro.h"
#include "macro/telop.h"
#include "model/monitors.h"
#include "model/picture_controls.h"
#include "model/windows/control_box.h"
#include "model/windows/link_list.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "picture/effect_context.h"
#include "picture/effects.h"
#include "picture/load.h"
#include "picture/overlay.h"
#include "picture/screen.h"
#include "playback/control_box.h"
#include "playback/go_on.h"
#include "playback/link_run.h"
#include "playback/macro_clicks.h"
#include "playback/prepare.h"
#include "playback/run.h"
#include "playback/step_sound.h"

namespace playback {

namespace {

bool MacroButtonsUp(const Application& app) {
    return app.state.MacroButtonsShown == 1 || app.windows.slidescreen.Command1.Visible;
}

/// Slide on the screen: a running show's index points at the one after it.
int ShownIndex(const model::ShowState& state) {
    return state.ShowRunning == 1 ? state.SlideIndex - 1 : state.SlideIndex;
}

/// Clears the canvas and makes the picture on show ready for it at the size of its monitor.
void FitToScreenAnew(Application& app) {
    picture::ClearCanvas(app);
    picture::ReleaseEffectContext(app);
    picture::RefitHeldPicture(app, true);
    picture::CreateEffectContext(app);
}

/// Sound plays on without a gap; that of a running show stays as macros and videos left it.
void ResetRunUnderSound(Application& app) {
    model::ShowState& state = app.state;
    const auto kept = std::make_tuple(state.RestartSoundFlag, state.RestartSoundMacro,
                                      state.Mp3VolumeOffset, state.SoundListStarted);
    ResetRunFields(app);
    if (state.ShowRunning == 1) {
        std::tie(state.RestartSoundFlag, state.RestartSoundMacro, state.Mp3VolumeOffset,
                 state.SoundListStarted) = kept;
    }
}

/// A show that ran in the main window, running or paused, moves to the full screen.
void TakeOverRunningShow(Application& app) {
    app.windows.SetPointer(model::kPointerArrowBusy);
    FitToScreenAnew(app);
    picture::RunShowEffect(app);
    CopyCanvasForMacros(app);
    app.windows.SetPointer(model::kPointerNormal);
    PrepareAround(app, ShownIndex(app.state));
    if (RunsForward(app)) {
        SetSlideInterval(app);
        app.windows.form1.Timer1.Enabled = true;
    }
}

/// False when no document of a link list can be had.
bool PrepareStart(Application& app) {
    model::ShowState& state = app.state;
    ShowFileEntries(app, false);
    EnableShowMenus(app, false);
    state.RestartSoundFlag = 0;
    state.FullScreenClosedByUser = 0;
    state.FullScreenClosed = 0;
    if (state.LinkRunning == 1) {
        return LoadFirstDocument(app);
    }
    if (state.JumpRequested != 1) {
        if (state.FullStartConfirm == 0) {
            app.platform.dialogs.Message(u"スライド画面全体表示スタート", platform::kPlain,
                                         u"パラピコ");
        }
        if (state.StartOption == 1) {
            state.PreviousPictureOnScreen = 0;
        }
        TakeResumeIndex(app);
    }
    return true;
}

void StartShow(Application& app) {
    model::ShowState& state = app.state;
    if (!state.SlideList(state.SlideIndex).empty()) {
        // The canvases take their memory here, while the first picture may still be being decoded.
        for (const model::PictureBox* layer :
             {&app.windows.slidescreen.P2, &app.windows.slidescreen.P4}) {
            layer->canvas.Pixels();
        }
        StepAndGoOn(app, Cause::FullScreen);
    } else if (state.LinkRunning == 1) {
        PassEmptyDocument(app);
    } else {
        state.SlideIndex = 0;
        state.ShowRunning = 0;
    }
}

void StartFromIdle(Application& app) {
    model::ShowState& state = app.state;
    if (!PrepareStart(app)) {
        return;
    }
    if (state.ControlBoxFlag == 0) {
        if (!MacroButtonsUp(app)) {
            app.windows.slidescreen2.Caption = u"START";
            app.windows.slidescreen2.Show();
        }
        // Not before Show: its activation copies the main window's buttons, which are still idle.
        SetBoxButtons(app, {.close = true, .start = false, .pause = true});
    }
    state.FullScreenActive = 1;
    state.ShowAbort = 0;
    state.ExitToMainOnClose = 0;
    TakeStartIndex(app);
    StartShow(app);
}

void Form_Activate(Application& app) {
    model::ShowState& state = app.state;
    app.windows.form1.Hide();
    app.windows.form1.Picture1.AutoRedraw = false;
    if (state.ShowRunning == 0 && state.SlideIndex == 0) {
        StartFromIdle(app);
    }
    if (!MacroButtonsUp(app)) {
        BringUpControlBox(app);
    }
    if (state.StopRequest == 1 || state.FullScreenClosed == 1) {
        app.windows.slidescreen.Unload();
    }
}

void Form_Load(Application& app) {
    model::Slidescreen& slidescreen = app.windows.slidescreen;
    macro::ClearMacroObjects(app);
    for (auto& slot : slidescreen.Picture1) {
        slot->BackColor = model::kSystemButtonColor;
    }
    slidescreen.BackColor = 0;
    for (model::PictureBox* layer : {&slidescreen.P2, &slidescreen.P3, &slidescreen.P4}) {
        layer->SetPicture(nullptr);
    }
    picture::ResetCanvasGround(app);
    picture::RestartEffects(app.state);
    app.state.FullScreenClosed = 0;
}

bool UnloadEndsShow(const model::ShowState& state) {
    const bool nothingRuns =
        state.ShowRunning == 0 && state.SlideIndex == 0 && state.StopRequest != 1;
    return nothingRuns || state.FullScreenEndMark == 1 || state.LinkRunning == 1 ||
           state.ReturnToSlideList == 1 || state.ExitToMainOnClose == 1 ||
           state.LinkWindowOpen == 1 || state.AlwaysFullFlag == 0;
}

void EndShowOnUnload(Application& app) {
    model::ShowState& state = app.state;
    state.FullScreenClosedByUser = 1;
    if (state.LinkWindowOpen != 1) {
        state.LinkStoodAt = 0;
    }
    state.LinkRunning = 0;
    state.LinkIndex = 0;
    EndRun(app);
    document::CountSlides(app);
    StopShowSound(app);
}

void ShowCaller(Application& app) {
    model::Windows& windows = app.windows;
    if (app.state.LinkWindowOpen == 1) {
        windows.form9.Show();
    } else if (app.state.ReturnToSlideList == 0) {
        windows.form1.Show();
    } else {
        windows.form1.Hide();
        windows.form3.Show();
    }
}

bool HasCurrentPicture(const model::ShowState& state) {
    return state.SlideIndex > 0 && (!state.SlideList(state.SlideIndex).empty() ||
                                    !state.SlideList(ShownIndex(state)).empty());
}

void Form_Unload(Application& app) {
    model::ShowState& state = app.state;
    model::Windows& windows = app.windows;
    windows.ForceCursor(true);  // macros may have hidden it any number of times
    state.MacroCursorHidden = 0;
    macro::ClearMacroObjects(app);
    windows.slidescreen2.Hide();
    state.JumpRequested = 0;
    state.FullScreenActive = 0;
    picture::ClearCanvas(app);
    windows.form4.Picture3.SetPicture(nullptr);
    picture::ReleaseEffectContext(app);
    state.FullScreenClosed = 1;
    if (UnloadEndsShow(state)) {
        EndShowOnUnload(app);
    }
    // Without adjustment the picture stays as it is, unless it was enlarged with its canvas.
    const bool enlarged = !windows.slidescreen.P2.canvas.Scaling().Plain();
    if (HasCurrentPicture(state) && state.ShowAbort != 1 &&
        (state.SizeAdjust == 0 || state.SizeAdjust == 1 || enlarged)) {
        picture::RefitHeldPicture(app, false);
    }
    if (state.SlideIndex > 0) {
        PrepareAround(app, ShownIndex(state));
    }
    windows.form1.Picture1.AutoRedraw = true;
    windows.slidescreen.Hide();
    ShowCaller(app);
}

void Screen_Click(Application& app) {
    NoteInput(app);
    if (app.state.MacroWaitClick == 1 || app.state.MacroCursorHidden == 1) {
        return;
    }
    BringUpControlBox(app);
    if (!MacroButtonsUp(app) && app.windows.Pointer() == model::kPointerNormal) {
        app.windows.slidescreen.Unload();
    }
}

/// After a video the second press of a double click may land here: it must not end the show.
void P2_Click(Application& app) {
    if (app.windows.form3.Timer1.Enabled) {
        NoteInput(app);
    } else {
        Screen_Click(app);
    }
}

void Screen_KeyDown(Application& app, int code) {
    NoteInput(app);
    if (app.state.MacroWaitClick != 1 && code == model::kKeyEscape &&
        app.windows.Pointer() == model::kPointerNormal) {
        app.windows.slidescreen.Unload();
    }
}

}  // namespace

void PlaceFullScreen(Application& app) {
    model::Slidescreen& slidescreen = app.windows.slidescreen;
    app.state.MonitorIndex = static_cast<int16_t>(model::MonitorOfMainWindow(app));
    const platform::Rect monitor = model::MonitorTwips(app, app.state.MonitorIndex);
    slidescreen.Load();
    slidescreen.Left = monitor.x;
    slidescreen.Top = monitor.y;
    slidescreen.Width = monitor.width;
    slidescreen.Height = monitor.height;
    picture::SizeLayers(app);
}

void StartFullScreen(Application& app) {
    ShowFileEntries(app, false);
    app.windows.form1.Timer1.Enabled = false;
    ResetRun(app);
    PlaceFullScreen(app);
    app.windows.slidescreen.Show();
}

void FollowMonitors(Application& app) {
    const model::ShowState& state = app.state;
    const model::PictureBox& canvas = app.windows.slidescreen.P2;
    if (!app.windows.slidescreen.Loaded) {
        return;
    }
    const platform::Scale before = canvas.canvas.Scaling();
    PlaceFullScreen(app);
    PlaceControlBox(app);
    const bool resized = !(canvas.canvas.Scaling() == before);
    if (resized && !canvas.canvas.Scaling().Plain()) {
        macro::RefitPieces(app);
    }
    // A step in progress goes on where it is; pictures piled up cannot be fitted again.
    if (resized && state.EffectDcValid == 1 && state.StepBusy == 0 && state.OverlayMode == 0) {
        FitToScreenAnew(app);
        picture::ShowAtOnce(app);
        CopyCanvasForMacros(app);
        macro::KeepBackground(app);
        PrepareAround(app, ShownIndex(state));
    }
}

void Command4_Click(Application& app) {
    model::ShowState& state = app.state;
    if (state.MacroWaitClick == 1 || state.StepBusy == 1 || RefusedByListWindow(app)) {
        return;
    }
    ShowFileEntries(app, false);
    app.windows.form1.Timer1.Enabled = false;
    const bool idle = state.SlideIndex == 0;
    if (idle) {
        ResetRun(app);
    } else {
        ResetRunUnderSound(app);
    }
    if (!idle && state.ShowRunning == 0) {
        state.StartLatch = 0;  // a paused show stays paused: START must work when it comes back
    }
    PlaceFullScreen(app);
    if (!idle) {
        state.FullScreenActive = 1;
    }
    app.windows.slidescreen.Show();
    if (idle || state.FullScreenClosed == 1) {
        return;
    }
    picture::ResetCanvasGround(app);
    TakeOverRunningShow(app);
}

void AttachFullScreen(Application& app) {
    model::Slidescreen& slidescreen = app.windows.slidescreen;
    slidescreen.OnLoad = [&app] { Form_Load(app); };
    slidescreen.Timer1.Tick = [&app] { macro::ScrollTelopOnScreen(app); };
    slidescreen.OnActivate = [&app] { Form_Activate(app); };
    slidescreen.OnUnload = [&app] { Form_Unload(app); };
    slidescreen.GroundChanged = [&app] { picture::FollowGround(app); };
    slidescreen.Click = [&app] { Screen_Click(app); };
    slidescreen.KeyDown = [&app](int code) { Screen_KeyDown(app, code); };
    slidescreen.P2.Click = [&app] { P2_Click(app); };
    slidescreen.Picture2.Click = [&app] { Screen_Click(app); };
    for (model::PictureBox* surface : {&slidescreen.P2, &slidescreen.Picture2}) {
        surface->KeyDown = [&app](int code) { Screen_KeyDown(app, code); };
    }
    AttachScreenMacroClicks(app);
    app.platform.monitors.onChanged = [&app] { FollowMonitors(app); };
}

}  // namespace playback

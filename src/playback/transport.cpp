#include "playback/transport.h"

#include "document/interval.h"
#include "document/show_document.h"
#include "macro/macro.h"
#include "macro/telop.h"
#include "model/controls.h"
#include "model/menu.h"
#include "model/sound_modes.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "picture/load.h"
#include "picture/screen.h"
#include "playback/full_screen.h"
#include "playback/link_run.h"
#include "playback/macro_clicks.h"
#include "playback/prepare.h"
#include "playback/schedule.h"
#include "playback/slide_step.h"
#include "playback/step_sound.h"
#include "sound/sound.h"
#include "text/paths.h"

namespace playback {

namespace {

void HideVideoPlaceholders(Application& app) {
    app.windows.form1.Picture3.Visible = false;
    app.windows.slidescreen.Picture2.Visible = false;
}

/// The end of a show that nobody continues: what START at the end and the tick have in common.
void EndShow(Application& app) {
    model::ShowState& state = app.state;
    state.StepBusy = 0;
    state.StopRequest = 1;
    state.StartLatch = 0;
    state.MacroWaitClick = 0;
    ClearRun(app);
    SetButtons(app, Buttons::Idle);
    ShowFileEntries(app, true);
    EnableShowMenus(app, true);
}

/// After a step of a running show: false where it was stopped, paused or failed.
bool GoesOn(Application& app) {
    model::ShowState& state = app.state;
    if (state.StopRequest == 1) {
        state.ShowAbort = 0;
        return false;
    }
    if (state.ShowRunning == 0) {
        return false;
    }
    if (state.ShowAbort == 1) {
        state.ShowAbort = 0;
        app.windows.slidescreen.Unload();
        StopShow(app);
        return false;
    }
    return true;
}

void StartFirstStep(Application& app) {
    // Ahead of the step: a first slide that waits for a person can be left by STOP.
    SetButtons(app, Buttons::Running);
    SetSlideInterval(app);
    app.state.ShowRunning = 1;
    SkipFirstSyncWait(app);
    StartShowSound(app);
    if (!RunSlideStep(app)) {
        return;
    }
    app.windows.SetPointer(model::kPointerNormal);
    if (GoesOn(app)) {
        Advance(app);
    }
}

/// START with nothing behind the slide on the screen.
void StartAtListEnd(Application& app) {
    model::ShowState& state = app.state;
    app.windows.form1.Timer1.Enabled = false;
    if (state.RepeatFlag == 1) {
        sound::RestoreCaption(app);
        sound::StopCd(app);
        sound::StopSound(app);
        EndShow(app);
        app.windows.SetPointer(model::kPointerNormal);
        return;
    }
    SetButtons(app, Buttons::Running);
    SkipFirstSyncWait(app);
    StartShowSound(app);
    SetSlideInterval(app);
    app.windows.SetPointer(model::kPointerNormal);
    state.SlideIndex = 1;
    state.ShowRunning = 1;
    app.windows.form1.Timer1.Enabled = true;
}

/// A show follows its document: one that changed on disk is read anew and starts over.
void FollowDocumentFile(Application& app) {
    model::ShowState& state = app.state;
    if (state.DocumentPath.empty()) {
        return;
    }
    const auto written = app.platform.files.LastWrite(state.DocumentPath);
    if (!written) {
        return;
    }
    const Text date = platform::DateTimeText(*written);
    if (date != state.DocumentFileDate) {
        state.BaseFolder = text::FolderPart(state.DocumentPath);
        document::ReadShowDocument(app, Text(state.DocumentPath));
        state.ShowAbort = 0;  // refused and told: what there is plays on, whatever its first slide
        state.SlideIndex = 1;
    }
    state.DocumentFileDate = date;
}

/// True when the tick is over.
bool EndOfList(Application& app) {
    model::ShowState& state = app.state;
    // In a chain a document without slides is over at once: nothing else would go on to the next.
    const bool listEnded = state.SlideIndex >= state.SlideListEnd &&
                           (state.SlideListEnd > 1 || state.LinkRunning == 1);
    if (!listEnded && state.CdProgramEnded != 1) {
        return false;
    }
    state.CdProgramEnded = 0;
    if (state.RepeatFlag == 0 && state.LinkRunning != 1) {
        state.SlideIndex = 1;
        return false;
    }
    sound::RestoreCaption(app);
    sound::StopCd(app);
    sound::StopSound(app);
    if (state.LinkRunning == 0) {
        EndShow(app);
    } else if (ContinueLinkRun(app)) {
        return true;
    }
    state.SoundListPos = 0;
    state.CdProgramPosition = 0;
    app.windows.slidescreen.Unload();
    if (state.LinkWindowOpen != 1) {
        app.windows.form1.Show();
    }
    picture::SizePreview(app);
    return true;
}

/// Shows slides until one is not passed over by its schedule. `next` tells whether there is one
/// and moves to it.
template <class Next>
void StepByHand(Application& app, Next next) {
    model::ShowState& state = app.state;
    while (state.ShowRunning == 0 && next() && RunStepByHand(app) && state.ScheduleSkipped == 1) {
    }
}

void Timer2_Tick(Application& app) {
    picture::ClearPreview(app);
    app.windows.form1.Timer2.Enabled = false;
    app.windows.SetPointer(model::kPointerNormal);
}

}  // namespace

void SetButtons(Application& app, Buttons buttons) {
    model::Form1& form1 = app.windows.form1;
    const bool running = buttons == Buttons::Running;
    const bool filled = app.windows.form3.List1.ListCount() > 0;
    form1.Command1.Enabled = !running && filled;
    form1.Command2.Enabled = running;
    form1.Command3.Enabled = running;
    form1.Command4.Enabled = running || filled;
    form1.Command5.Enabled = false;
    form1.Command7.Enabled = false;
    for (model::Button* button : {&form1.Command6, &form1.Command10, &form1.Command11}) {
        button->Enabled = !running;
    }
}

void ShowFileEntries(Application& app, bool visible) {
    model::Form1& form1 = app.windows.form1;
    for (model::MenuEntry* entry :
         {&form1.mnuNEW, &form1.mnuOPEN, &form1.mnuSAVE, &form1.mnuHAIHU}) {
        entry->Visible = visible;
    }
}

void EnableShowMenus(Application& app, bool enabled) {
    model::Form1& form1 = app.windows.form1;
    for (model::MenuEntry* menu :
         {&form1.mnuOPTION, &form1.mnuGKO, &form1.mnuICHI, &form1.mnuCDM, &form1.mnuURU}) {
        menu->Enabled = enabled;
    }
}

void ResetRunFields(Application& app) {
    model::ShowState& state = app.state;
    state.LinkedWavPath.clear();
    state.LinkedMediaPath.clear();
    for (int16_t model::ShowState::*flag :
         {&model::ShowState::SoundListStarted, &model::ShowState::LastWasVideo,
          &model::ShowState::RestartSoundMacro, &model::ShowState::RestartSoundFlag,
          &model::ShowState::MacroButtonsShown, &model::ShowState::StopRequest,
          &model::ShowState::FullScreenClosedByUser, &model::ShowState::ShowAbort,
          &model::ShowState::SoundPaused}) {
        state.*flag = 0;
    }
    macro::ResetShowSettings(app);
    TakeShowDate(app);
    state.StartLatch = 1;
}

void ResetRun(Application& app) {
    ResetRunFields(app);
    sound::StopSound(app);
}

void ClearRun(Application& app) {
    model::ShowState& state = app.state;
    model::RestoreTextOrigin(state);
    state.CdPaused = 0;
    state.SoundPaused = 0;
    state.SoundListPos = 0;
    state.CdProgramPosition = 0;
    state.ShowRunning = 0;
    state.SlideIndex = 0;
    if (state.StepPhase == 1) {
        state.StepPhase = 2;
    }
    app.windows.form1.ShownSlide = 0;
    app.windows.form1.Timer1.Enabled = false;
    picture::ClearPreview(app);
    ForgetPrepared(app);
    app.platform.system.ForgetShow();
}

void SetSlideInterval(Application& app) {
    app.windows.form1.Timer1.Interval = static_cast<int>(document::IntervalMs(app.state));
}

void Advance(Application& app) {
    app.state.SlideIndex = static_cast<int16_t>(app.state.SlideIndex + 1);
    app.windows.form1.Timer1.Enabled = true;
}

bool RunStepByHand(Application& app) {
    model::ShowState& state = app.state;
    app.windows.SetPointer(model::kPointerArrowBusy);
    state.ScheduleSkipped = 0;
    if (!RunSlideStep(app)) {
        return false;
    }
    state.StepBusy = 0;
    app.windows.SetPointer(model::kPointerNormal);
    if (state.ShowAbort == 1 && state.SlideList(1).empty()) {
        state.ShowAbort = 0;
        StopShow(app);
        return false;
    }
    return true;
}

void StopShow(Application& app) {
    app.state.MacroWaitClick = 0;
    Command3_Click(app);
}

void Command1_Click(Application& app) {
    model::ShowState& state = app.state;
    model::Form1& form1 = app.windows.form1;
    if (state.AlwaysFullFlag == 0) {
        Command4_Click(app);
        return;
    }
    if (state.StepBusy == 1) {
        return;
    }
    if (state.SlideListWindowOpen == 1) {
        app.platform.dialogs.Message(u"ファイル選択を終了させてから行って下さい。",
                                     platform::kExclamation, u"ファイル選択");
        return;
    }
    ShowFileEntries(app, false);
    for (model::Button* button :
         {&form1.Command1, &form1.Command2, &form1.Command3, &form1.Command4, &form1.Command6,
          &form1.Command5, &form1.Command7, &form1.Command10, &form1.Command11}) {
        button->Enabled = false;
    }
    if (state.StartLatch == 1) {
        return;
    }
    app.windows.SetPointer(model::kPointerArrowBusy);
    ResetRun(app);
    TakeResumeIndex(app);
    picture::ClearPreview(app);
    TakeStartIndex(app);
    EnableShowMenus(app, false);
    if (state.SlideList(state.SlideIndex).empty()) {
        StartAtListEnd(app);
    } else {
        StartFirstStep(app);
    }
}

void Command2_Click(Application& app) {
    model::ShowState& state = app.state;
    model::Form1& form1 = app.windows.form1;
    const bool busy = state.StepBusy == 1 && state.StepWaiting != 1;
    if (state.MacroWaitClick == 1 || app.windows.Pointer() != model::kPointerNormal || busy) {
        return;
    }
    HideVideoPlaceholders(app);
    form1.Command2.Enabled = false;
    state.StartLatch = 0;
    if (state.SoundMode == model::kCdSound) {
        state.CdPausedTrack = app.platform.sound.MciSendString(u"status cdaudio current track");
        state.CdPaused = 1;
    }
    app.platform.sound.MciSendString(u"stop cdaudio");
    if (model::SoundModeInForce(state).pauseStops && model::PlaysPieces(state)) {
        state.SoundPaused = 1;
        sound::StopSound(app);
    }
    if (state.SlideIndex > 0 && state.ShowRunning == 1) {
        form1.Timer1.Enabled = false;
        state.ShowRunning = 0;
        state.SlideIndex = static_cast<int16_t>(state.SlideIndex - 1);
        if (state.StepWaiting == 1) {
            state.ResumeIndex = state.SlideIndex;  // the slide that waited has not been shown
        }
        if (state.SlideIndex > 1) {
            form1.Command5.Enabled = true;
        }
        if (state.SlideIndex < state.SlideListEnd - 1) {
            form1.Command7.Enabled = true;
        }
        form1.Command1.Enabled = true;
        PrepareAround(app, state.SlideIndex);
    }
}

void Command3_Click(Application& app) {
    model::ShowState& state = app.state;
    model::Form1& form1 = app.windows.form1;
    if (state.MacroWaitClick == 1 || state.StopRequest == 1) {
        return;
    }
    app.windows.SetPointer(model::kPointerNormal);
    SetSlideInterval(app);
    HideVideoPlaceholders(app);
    ShowFileEntries(app, true);
    macro::ClearMacroObjects(app);
    state.StepBusy = 0;
    state.StopRequest = 1;
    state.MacroDelayWaiting = 0;
    state.StartLatch = 0;
    app.windows.slidescreen.Unload();
    ClearRun(app);
    const bool filled = !state.SlideList(1).empty();
    SetButtons(app, Buttons::Idle);
    form1.Command1.Enabled = filled;
    form1.Command4.Enabled = filled;
    sound::StopCd(app);
    sound::StopSound(app);
    EnableShowMenus(app, true);
}

void Command5_Click(Application& app) {
    model::ShowState& state = app.state;
    if (state.StepBusy == 1) {
        return;
    }
    StepByHand(app, [&] {
        if (state.SlideIndex <= 1) {
            return false;
        }
        app.windows.form1.Command7.Enabled = true;
        state.SlideIndex = static_cast<int16_t>(state.SlideIndex - 1);
        return true;
    });
    if (state.SlideIndex <= 1) {
        app.windows.form1.Command5.Enabled = false;
    }
}

void Command7_Click(Application& app) {
    model::ShowState& state = app.state;
    if (state.StepBusy == 1) {
        return;
    }
    StepByHand(app, [&] {
        if (state.SlideIndex >= state.SlideListEnd - 1) {
            return false;
        }
        if (state.SlideIndex > 0) {
            app.windows.form1.Command5.Enabled = true;
        }
        state.SlideIndex = static_cast<int16_t>(state.SlideIndex + 1);
        return true;
    });
    if (state.SlideIndex == state.SlideListEnd - 1) {
        app.windows.form1.Command7.Enabled = false;
    }
}

void Timer1_Tick(Application& app) {
    model::ShowState& state = app.state;
    model::Form1& form1 = app.windows.form1;
    FollowDocumentFile(app);
    SetSlideInterval(app);
    if (EndOfList(app)) {
        return;
    }
    if (state.ShowRunning != 1 || state.SlideIndex >= state.SlideListEnd) {
        return;
    }
    form1.Timer1.Enabled = false;
    if (RunSlideStep(app) && GoesOn(app)) {
        Advance(app);
    }
}

void AttachTransport(Application& app) {
    model::Form1& form1 = app.windows.form1;
    form1.Command1.Click = [&app] { Command1_Click(app); };
    form1.Command2.Click = [&app] { Command2_Click(app); };
    form1.Command3.Click = [&app] { Command3_Click(app); };
    form1.Command4.Click = [&app] { Command4_Click(app); };
    form1.Command5.Click = [&app] { Command5_Click(app); };
    form1.Command7.Click = [&app] { Command7_Click(app); };
    AttachWindowMacroClicks(app);
    form1.Timer1.Tick = [&app] { Timer1_Tick(app); };
    form1.Timer2.Tick = [&app] { Timer2_Tick(app); };
    form1.Timer3.Tick = [&app] { app.state.MacroDelayWaiting = 0; };
    form1.Timer4.Tick = [&app] { macro::ScrollTelopInWindow(app); };
}

}  // namespace playback

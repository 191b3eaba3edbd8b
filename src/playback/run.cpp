#include "playback/run.h"

#include <algorithm>

#include "document/interval.h"
#include "document/main_caption.h"
#include "macro/macro.h"
#include "model/menu.h"
#include "model/sound_modes.h"
#include "model/windows/control_box.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "picture/load.h"
#include "playback/prepare.h"
#include "playback/schedule.h"
#include "sound/cd.h"
#include "sound/sound.h"

namespace playback {

namespace {

void HideVideoPlaceholders(Application& app) {
    app.windows.form1.Picture3.Visible = false;
    app.windows.slidescreen.Picture2.Visible = false;
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

void SetBoxButtons(Application& app, const BoxButtons& buttons) {
    model::Slidescreen2& box = app.windows.slidescreen2;
    box.Command1.Enabled = buttons.close;
    box.Command2.Enabled = buttons.start;
    box.Command3.Enabled = buttons.pause;
    box.Command4.Enabled = buttons.previous;
    box.Command5.Enabled = buttons.next;
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

bool RefusedByListWindow(Application& app) {
    if (app.state.SlideListWindowOpen != 1) {
        return false;
    }
    app.platform.dialogs.Message(u"ファイル選択を終了させてから行って下さい。",
                                 platform::kExclamation, u"ファイル選択");
    return true;
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

void TakeResumeIndex(Application& app) {
    model::ShowState& state = app.state;
    if (state.StartOption != 1) {
        return;
    }
    // A first slide that left the list leaves -1.
    state.SlideIndex = std::max<int16_t>(0, state.ResumeIndex);
    if (state.SlideList(state.SlideIndex + 1).empty() && state.SlideIndex > 0) {
        state.SlideIndex = 0;
    }
}

void TakeStartIndex(Application& app) {
    model::ShowState& state = app.state;
    if (state.JumpRequested == 1) {
        state.SlideIndex = static_cast<int16_t>(state.JumpTarget + 1);
        state.JumpRequested = 0;
    } else {
        state.SlideIndex = static_cast<int16_t>(state.SlideIndex + 1);
    }
}

void SetSlideInterval(Application& app) {
    app.windows.form1.Timer1.Interval = static_cast<int>(document::IntervalMs(app.state));
}

void EndRun(Application& app) {
    model::ShowState& state = app.state;
    model::RestoreTextOrigin(state);
    for (int16_t model::ShowState::*field :
         {&model::ShowState::StepBusy, &model::ShowState::StartLatch,
          &model::ShowState::MacroWaitClick, &model::ShowState::MacroDelayWaiting,
          &model::ShowState::CdPaused, &model::ShowState::SoundPaused,
          &model::ShowState::SoundListPos, &model::ShowState::CdProgramPosition,
          &model::ShowState::ShowRunning, &model::ShowState::SlideIndex}) {
        state.*field = 0;
    }
    state.StopRequest = 1;
    if (state.StepPhase == 1) {
        state.StepPhase = 2;
    }
    app.windows.form1.ShownSlide = 0;
    app.windows.form1.Timer1.Enabled = false;
    picture::ClearPreview(app);
    ForgetPrepared(app);
    app.platform.system.ForgetShow();
    SetButtons(app, Buttons::Idle);
    ShowFileEntries(app, true);
    EnableShowMenus(app, true);
}

void StopShowSound(Application& app) {
    document::ShowDocumentCaption(app);
    sound::StopCd(app);
    sound::StopSound(app);
}

void CloseFullScreen(Application& app) {
    app.state.ExitToMainOnClose = 1;
    app.windows.slidescreen.Unload();
    app.state.ExitToMainOnClose = 0;
    picture::ClearPreview(app);
    ShowFileEntries(app, true);
}

void StopShow(Application& app) {
    app.state.MacroWaitClick = 0;
    Command3_Click(app);
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
    macro::ClearMacroObjects(app);
    state.StopRequest = 1;  // before the unload, which asks for it
    app.windows.slidescreen.Unload();
    EndRun(app);
    const bool filled = !state.SlideList(1).empty();
    form1.Command1.Enabled = filled;
    form1.Command4.Enabled = filled;
    sound::StopCd(app);
    sound::StopSound(app);
}

}  // namespace playback

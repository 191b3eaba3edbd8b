#include "playback/transport.h"

#include "document/show_document.h"
#include "macro/telop.h"
#include "model/controls.h"
#include "model/sound_modes.h"
#include "model/windows/main_window.h"
#include "picture/load.h"
#include "playback/full_screen.h"
#include "playback/go_on.h"
#include "playback/macro_clicks.h"
#include "playback/run.h"
#include "sound/cd.h"
#include "text/paths.h"

namespace playback {

namespace {

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
        if (state.SoundMode != model::kCdSound) {
            sound::LeaveCd(app);
        }
        state.ShowAbort = 0;  // refused and told: what there is plays on, whatever its first slide
        state.SlideIndex = 1;
    }
    state.DocumentFileDate = date;
}

void Timer2_Tick(Application& app) {
    picture::ClearPreview(app);
    app.windows.form1.Timer2.Enabled = false;
    app.windows.SetPointer(model::kPointerNormal);
}

}  // namespace

void Command1_Click(Application& app) {
    model::ShowState& state = app.state;
    model::Form1& form1 = app.windows.form1;
    if (state.AlwaysFullFlag == 0) {
        Command4_Click(app);
        return;
    }
    if (state.StepBusy == 1 || RefusedByListWindow(app)) {
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
    if (!state.SlideList(state.SlideIndex).empty()) {
        StepAndGoOn(app, Cause::Start);
        return;
    }
    form1.Timer1.Enabled = false;
    if (state.RepeatFlag == 1) {
        EndAtListEnd(app);
    } else {
        StartByTick(app, true);
    }
    app.windows.SetPointer(model::kPointerNormal);
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
    const model::ShowState& state = app.state;
    FollowDocumentFile(app);
    SetSlideInterval(app);
    if (!PassListEnd(app) && state.ShowRunning == 1 && state.SlideIndex < state.SlideListEnd) {
        StepAndGoOn(app, Cause::Tick);
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

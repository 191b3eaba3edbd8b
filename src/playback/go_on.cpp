#include "playback/go_on.h"

#include <algorithm>
#include <iterator>

#include "model/controls.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"
#include "picture/screen.h"
#include "playback/link_run.h"
#include "playback/run.h"
#include "playback/step_sound.h"

namespace playback {

namespace {

constexpr int kEmptyDocumentTickMs = 1;

void EndAsStop(Application& app) {
    app.windows.slidescreen.Unload();
    StopShow(app);
}

void UnloadWithEndMark(Application& app) {
    app.state.FullScreenEndMark = 1;
    app.windows.slidescreen.Unload();
    app.state.FullScreenEndMark = 0;
}

enum class ShowSound { None, BeforeStep, AfterStep };

/// How a step of that cause is begun and gone on from.
struct CauseRow {
    Cause cause;
    bool byPerson;  // a START: running buttons, the interval, no wait for a sound that plays
    bool advances;  // the show runs; else it stands still
    ShowSound sound;
    bool endsIfStopped;         // also where it is stopping already
    void (*end)(Application&);  // of a show that was aborted
};

constexpr CauseRow kCauses[] = {
    {Cause::Start, true, true, ShowSound::BeforeStep, false, EndAsStop},
    {Cause::Tick, false, true, ShowSound::None, false, EndAsStop},
    {Cause::FullScreen, true, true, ShowSound::BeforeStep, true, UnloadWithEndMark},
    {Cause::Box, true, true, ShowSound::AfterStep, false, CloseShow},
    {Cause::Document, false, true, ShowSound::AfterStep, false, UnloadWithEndMark},
    {Cause::Hand, false, false, ShowSound::None, false, StopShow},
};

const CauseRow& RowOf(Cause cause) {
    return *std::find_if(std::begin(kCauses), std::end(kCauses),
                         [&](const CauseRow& row) { return row.cause == cause; });
}

void Begin(Application& app, const CauseRow& row) {
    app.windows.form1.Timer1.Enabled = false;
    if (row.byPerson) {
        // Before the step: a first slide that waits for a person can be left by STOP.
        SetButtons(app, Buttons::Running);
        // Not after the step, which leaves a shorter one where the next slide follows at once.
        SetSlideInterval(app);
        SkipFirstSyncWait(app);
    }
    if (row.advances) {
        app.state.ShowRunning = 1;
    } else {
        app.windows.SetPointer(model::kPointerArrowBusy);
        app.state.ScheduleSkipped = 0;
    }
    if (row.sound == ShowSound::BeforeStep) {
        StartShowSound(app, row.byPerson);
    }
}

void GoOn(Application& app, const CauseRow& row) {
    if (row.sound == ShowSound::AfterStep) {
        StartShowSound(app, row.byPerson);
    }
    if (row.advances) {
        app.state.SlideIndex = static_cast<int16_t>(app.state.SlideIndex + 1);
        app.windows.form1.Timer1.Enabled = true;
    }
}

void End(Application& app, const CauseRow& row) {
    // By hand a show ends with its last slide only.
    if (row.advances || app.state.SlideList(1).empty()) {
        app.state.ShowAbort = 0;
        row.end(app);
    }
}

}  // namespace

Outcome StepAndGoOn(Application& app, Cause cause) {
    const CauseRow& row = RowOf(cause);
    Begin(app, row);
    const Outcome outcome = RunSlideStep(app);
    app.windows.SetPointer(model::kPointerNormal);
    if (!row.advances && outcome != Outcome::Over) {
        app.state.StepBusy = 0;  // no step follows that would free it
    }
    switch (outcome) {
        case Outcome::Done:
        case Outcome::Skipped:
            GoOn(app, row);
            break;
        case Outcome::Aborted:
            End(app, row);
            break;
        case Outcome::Stopped:
            if (row.endsIfStopped) {
                End(app, row);
            }
            break;
        case Outcome::Paused:
        case Outcome::Over:
            break;
    }
    return outcome;
}

Outcome StepByHand(Application& app, const std::function<bool()>& next) {
    Outcome outcome = Outcome::Skipped;
    while (outcome == Outcome::Skipped && app.state.ShowRunning == 0 && next()) {
        outcome = StepAndGoOn(app, Cause::Hand);
    }
    return outcome;
}

void StartByTick(Application& app, bool fromFirst) {
    model::ShowState& state = app.state;
    SetButtons(app, Buttons::Running);
    SkipFirstSyncWait(app);
    StartShowSound(app, true);
    SetSlideInterval(app);
    if (fromFirst) {
        state.SlideIndex = 1;  // not before the sound, which would give way to a film there
    }
    state.ShowRunning = 1;
    app.windows.form1.Timer1.Enabled = true;
}

void PassEmptyDocument(Application& app) {
    model::Timer& timer = app.windows.form1.Timer1;
    SetButtons(app, Buttons::Running);
    app.state.ShowRunning = 1;
    app.state.SlideIndex = 1;
    timer.Interval = kEmptyDocumentTickMs;
    timer.Enabled = true;
}

void EndAtListEnd(Application& app) {
    StopShowSound(app);
    EndRun(app);
}

bool PassListEnd(Application& app) {
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
    if (state.LinkRunning == 0) {
        EndAtListEnd(app);
    } else {
        StopShowSound(app);
        app.windows.form1.Timer1.Enabled = false;
        switch (LoadNextDocument(app)) {
            case Loading::Refused:
                return true;
            case Loading::Empty:
                PassEmptyDocument(app);
                return true;
            case Loading::Loaded:
                state.SlideIndex = 1;
                StepAndGoOn(app, Cause::Document);
                return true;
            case Loading::Nothing:
                break;
        }
    }
    app.windows.slidescreen.Unload();
    if (state.LinkWindowOpen != 1) {
        app.windows.form1.Show();
    }
    picture::SizePreview(app);
    return true;
}

void CloseShow(Application& app) {
    CloseFullScreen(app);
    SetBoxButtons(app, {});
    SetSlideInterval(app);
}

}  // namespace playback

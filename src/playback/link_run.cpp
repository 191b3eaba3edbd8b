#include "playback/link_run.h"

#include "document/show_document.h"
#include "document/show_schedule.h"
#include "macro/macro.h"
#include "playback/slide_step.h"
#include "playback/step_sound.h"
#include "playback/transport.h"
#include "text/paths.h"

namespace playback {

bool LoadLinkEntry(Application& app) {
    model::ShowState& state = app.state;
    const Text path = state.LinkList(state.LinkIndex);
    state.BaseFolder = text::FolderPart(path);
    state.ShowAbort = 0;  // a document refused earlier may have left it set
    document::ReadShowDocument(app, path);
    if (state.ShowAbort == 1) {
        app.windows.slidescreen.Unload();
        state.ShowAbort = 0;
        return false;
    }
    macro::ResetShowSettings(app);
    state.SlideIndex = 0;
    state.ShowRunning = 0;
    // The document's own sound begins with it: what the one before left to be started anew would
    // be started twice.
    state.RestartSoundFlag = 0;
    state.RestartSoundMacro = 0;
    state.SlideList.Erase();
    const model::ListBox& list = app.windows.form3.List1;
    for (int row = 0; row < list.ListCount(); ++row) {
        state.SlideList.Set(row + 1, list.List(row));
    }
    document::RebuildSchedule(app);
    state.SlideListEnd = static_cast<int16_t>(list.ListCount() + 1);
    state.LinkIndex = static_cast<int16_t>(state.LinkIndex + 1);
    return true;
}

bool ContinueLinkRun(Application& app) {
    model::ShowState& state = app.state;
    if (state.LinkIndex >= state.LinkEnd) {
        if (state.LinkRepeat != 1) {
            return false;
        }
        state.LinkIndex = 1;
    }
    model::Timer& timer = app.windows.form1.Timer1;
    timer.Enabled = false;
    if (!LoadLinkEntry(app)) {
        return true;
    }
    state.ShowRunning = 1;
    state.SlideIndex = 1;
    RunSlideStep(app);
    if (state.ShowAbort == 1) {
        app.windows.slidescreen.Unload();
        state.ShowAbort = 0;
        return true;
    }
    if (state.StopRequest == 1 || state.ShowRunning == 0) {
        return true;  // stopped, or paused while the step waited
    }
    StartShowSound(app);
    timer.Enabled = true;
    state.SlideIndex = static_cast<int16_t>(state.SlideIndex + 1);
    return true;
}

}  // namespace playback

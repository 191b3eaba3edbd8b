#include "playback/link_run.h"

#include "document/show_document.h"
#include "document/show_schedule.h"
#include "macro/macro.h"
#include "model/controls.h"
#include "model/list_controls.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "playback/slide_step.h"
#include "playback/step_sound.h"
#include "playback/transport.h"
#include "text/paths.h"

namespace playback {

namespace {

constexpr int kEmptyDocumentTickMs = 1;

enum class Entry {
    Loaded,
    Unopened,  // told; nothing changed
    Refused,   // told; the full screen is unloaded
};

bool HasSlides(const model::ShowState& state) {
    return state.SlideListEnd > 1;
}

/// Reads the document, rebuilds the slide list, sets LinkIndex to the entry that follows.
Entry LoadEntry(Application& app, int entry) {
    model::ShowState& state = app.state;
    const Text path = state.LinkList(entry);
    const Text folderBefore = state.BaseFolder;
    state.BaseFolder = text::FolderPart(path);
    state.ShowAbort = 0;  // a document refused earlier may have left it set
    if (!document::ReadShowDocument(app, path)) {
        state.BaseFolder = folderBefore;
        return Entry::Unopened;
    }
    if (state.ShowAbort == 1) {
        app.windows.slidescreen.Unload();
        state.ShowAbort = 0;
        return Entry::Refused;
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
    state.LinkIndex = static_cast<int16_t>(entry + 1);
    if (HasSlides(state)) {
        state.LinkBarren = 0;
    }
    return Entry::Loaded;
}

/// From LinkIndex on, round the list where it repeats. Unopened: a round brought no slide, or the
/// list is at its end.
Entry LoadNext(Application& app) {
    model::ShowState& state = app.state;
    for (int entry = state.LinkIndex; state.LinkBarren < state.LinkEnd - 1; ++entry) {
        if (entry >= state.LinkEnd) {
            if (state.LinkRepeat != 1) {
                break;
            }
            entry = 1;
        }
        state.LinkBarren = static_cast<int16_t>(state.LinkBarren + 1);
        if (const Entry result = LoadEntry(app, entry); result != Entry::Unopened) {
            return result;
        }
    }
    return Entry::Unopened;
}

}  // namespace

bool LoadFirstDocument(Application& app) {
    app.state.LinkIndex = 1;
    app.state.LinkBarren = 0;
    const Entry result = LoadNext(app);
    if (result == Entry::Unopened) {
        app.windows.slidescreen.Unload();
    }
    return result == Entry::Loaded;
}

void PassEmptyDocument(Application& app) {
    model::Timer& timer = app.windows.form1.Timer1;
    app.state.ShowRunning = 1;
    app.state.SlideIndex = 1;
    timer.Interval = kEmptyDocumentTickMs;
    timer.Enabled = true;
}

bool ContinueLinkRun(Application& app) {
    model::ShowState& state = app.state;
    app.windows.form1.Timer1.Enabled = false;
    if (const Entry result = LoadNext(app); result != Entry::Loaded) {
        return result == Entry::Refused;
    }
    if (!HasSlides(state)) {
        PassEmptyDocument(app);
        return true;
    }
    state.ShowRunning = 1;
    state.SlideIndex = 1;
    if (!RunSlideStep(app)) {
        return true;
    }
    if (state.ShowAbort == 1) {
        app.windows.slidescreen.Unload();
        state.ShowAbort = 0;
        return true;
    }
    if (state.StopRequest == 1 || state.ShowRunning == 0) {
        return true;  // stopped, or paused while the step waited
    }
    StartShowSound(app);
    Advance(app);
    return true;
}

bool TurnToDocument(Application& app, int by) {
    model::ShowState& state = app.state;
    for (int entry = state.LinkIndex - 1 + by; entry >= 1 && entry < state.LinkEnd; entry += by) {
        const Entry result = LoadEntry(app, entry);
        if (result == Entry::Refused) {
            return false;
        }
        if (result == Entry::Loaded && HasSlides(state)) {
            state.SlideIndex = by > 0 ? int16_t{1} : static_cast<int16_t>(state.SlideListEnd - 1);
            return true;
        }
    }
    return false;
}

}  // namespace playback

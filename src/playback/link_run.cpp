#include "playback/link_run.h"

#include <algorithm>
#include <utility>

#include "document/show_document.h"
#include "document/slide_rows.h"
#include "macro/macro.h"
#include "model/windows/link_list.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "sound/cd.h"
#include "text/paths.h"

namespace playback {

namespace {

/// Reads the document, rebuilds the slide list, sets LinkIndex to the entry that follows. Nothing:
/// it could not be opened, which a box said, and nothing changed.
Loading LoadEntry(Application& app, int entry) {
    model::ShowState& state = app.state;
    const Text path = state.LinkList(entry);
    const Text folderBefore = state.BaseFolder;
    state.BaseFolder = text::FolderPart(path);
    state.ShowAbort = 0;  // a document refused earlier may have left it set
    if (!document::ReadShowDocument(app, path)) {
        state.BaseFolder = folderBefore;
        return Loading::Nothing;
    }
    state.LinkStoodAt = static_cast<int16_t>(entry);
    if (state.ShowAbort == 1) {
        app.windows.slidescreen.Unload();
        state.ShowAbort = 0;
        return Loading::Refused;
    }
    macro::ResetShowSettings(app);
    state.SlideIndex = 0;
    state.ShowRunning = 0;
    // The document's own sound begins with it: what the one before left to be started anew would
    // be started twice.
    state.RestartSoundFlag = 0;
    state.RestartSoundMacro = 0;
    sound::LeaveCd(app);
    document::CommitSlides(app);
    state.LinkIndex = static_cast<int16_t>(entry + 1);
    if (state.SlideListEnd <= 1) {
        return Loading::Empty;
    }
    state.LinkBarren = 0;
    return Loading::Loaded;
}

}  // namespace

void TakeLinkRows(Application& app) {
    model::ShowState& state = app.state;
    const model::ListBox& list = app.windows.form9.List1;
    state.LinkList.Erase();
    for (int row = 0; row < list.ListCount(); ++row) {
        state.LinkList.Set(row + 1, list.List(row));
    }
    state.LinkEnd = static_cast<int16_t>(list.ListCount() + 1);
}

Loading LoadNextDocument(Application& app) {
    model::ShowState& state = app.state;
    for (int entry = state.LinkIndex; state.LinkBarren < state.LinkEnd - 1; ++entry) {
        if (entry >= state.LinkEnd) {
            if (state.LinkRepeat != 1) {
                break;
            }
            entry = 1;
        }
        state.LinkBarren = static_cast<int16_t>(state.LinkBarren + 1);
        if (const Loading result = LoadEntry(app, entry); result != Loading::Nothing) {
            return result;
        }
    }
    return Loading::Nothing;
}

bool LoadFirstDocument(Application& app) {
    app.state.LinkIndex = std::max<int16_t>(1, std::exchange(app.state.LinkStart, 0));
    app.state.LinkStoodAt = app.state.LinkIndex;
    app.state.LinkBarren = 0;
    const Loading result = LoadNextDocument(app);
    if (result == Loading::Nothing) {
        app.windows.slidescreen.Unload();
    }
    return result == Loading::Loaded || result == Loading::Empty;
}

bool TurnToDocument(Application& app, int by) {
    model::ShowState& state = app.state;
    for (int entry = state.LinkIndex - 1 + by; entry >= 1 && entry < state.LinkEnd; entry += by) {
        const Loading result = LoadEntry(app, entry);
        if (result == Loading::Refused) {
            return false;
        }
        if (result == Loading::Loaded) {
            state.SlideIndex = by > 0 ? int16_t{1} : static_cast<int16_t>(state.SlideListEnd - 1);
            return true;
        }
    }
    return false;
}

}  // namespace playback

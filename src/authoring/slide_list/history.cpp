#include "authoring/slide_list/history.h"

#include "authoring/shared/list_history.h"
#include "authoring/shared/list_rows.h"
#include "authoring/slide_list/slides.h"
#include "authoring/slide_list/stopped_search.h"
#include "document/slide_rows.h"
#include "model/windows/slide_list.h"
#include "playback/prepare.h"
#include "playback/run.h"

namespace authoring {

namespace {

using model::Application;

/// Buttons and preview are those of the selection that comes back.
void GoBack(Application& app, bool (*back)(Application& app)) {
    const int16_t slides = app.state.SlideListEnd;
    if (StoppedSearch(app) || !back(app)) {
        return;
    }
    app.state.SlideListDirty = 1;
    const ListWindow window = Slides(app);
    window.deselected(app);
    window.follow(app);
    if (app.state.SlideListEnd != slides) {
        playback::ForgetPrepared(app);
        playback::SetButtons(app, playback::Buttons::Idle);
    }
}

}  // namespace

void AttachHistory(Application& app) {
    model::Form3& form3 = app.windows.form3;
    AttachHistory(
        {form3.history, form3.Undo, form3.Redo, form3.mnuUNDO, form3.mnuREDO},
        [&app] { GoBack(app, document::UndoSlideRows); },
        [&app] { GoBack(app, document::RedoSlideRows); });
    form3.List1.RowsDragged = [slides = Slides(app)](int before) {
        MoveDraggedRows(slides, before);
    };
}

}  // namespace authoring

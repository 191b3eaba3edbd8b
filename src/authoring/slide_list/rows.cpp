#include "authoring/slide_list/rows.h"

#include "authoring/shared/list_rows.h"
#include "authoring/slide_list/slides.h"
#include "authoring/slide_list/stopped_search.h"
#include "document/main_caption.h"
#include "document/slide_rows.h"
#include "model/windows/slide_list.h"

namespace authoring {

namespace {

void Command4_Click(Application& app) {
    if (StoppedSearch(app) || app.windows.form3.List1.ListCount() == 0 ||
        !AskToClear(Slides(app), u"スライドリストをすべて消去しますか ?")) {
        return;
    }
    model::ShowState& state = app.state;
    app.windows.SetPointer(model::kPointerBusy);
    {
        const document::UndoStep step(document::SlideRows(app));
        document::ClearRows(document::SlideRows(app));
        for (Text* field : {&state.DocumentName, &state.DocumentPath, &state.BaseFolder,
                            &state.DocumentFileDate}) {
            field->clear();
        }
    }
    document::ShowDocumentCaption(app);
    state.ResumeIndex = 0;
    Slides(app).deselected(app);
    app.windows.SetPointer(model::kPointerNormal);
}

/// Kept: the preview is on afterwards, whatever it was.
void MoveSlide(Application& app, int direction, TextView title) {
    if (StoppedSearch(app)) {
        return;
    }
    if (!MoveSelectedRow(Slides(app), direction, title)) {
        return;
    }
    app.windows.form3.Check1.Value = 1;
    app.state.ListShowPicture = 1;
}

void List1_KeyDown(Application& app, int code) {
    if (code == model::kKeyInsert) {
        app.windows.form3.Check6.Press();
    } else if (code == model::kKeyDelete) {
        RemoveSelectedSlides(app);
    }
}

}  // namespace

void RemoveSelectedSlides(Application& app) {
    if (StoppedSearch(app)) {
        return;
    }
    const ListWindow slides = Slides(app);
    if (RemoveSelectedRows(slides)) {
        app.state.ResumeIndex = 0;
    }
    slides.deselected(app);
}

void AttachRows(Application& app) {
    model::Form3& form3 = app.windows.form3;
    form3.Command4.Click = [&app] { Command4_Click(app); };
    form3.Command5.Click = [&app] { RemoveSelectedSlides(app); };
    form3.Command13.Click = [&app] { MoveSlide(app, -1, u"↑移動不可"); };
    form3.Command14.Click = [&app] { MoveSlide(app, 1, u"↓移動不可"); };
    form3.List1.KeyDown = [&app](int code) { List1_KeyDown(app, code); };
}

}  // namespace authoring

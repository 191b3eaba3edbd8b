#include "authoring/slide_list/rows.h"

#include "authoring/slide_list/preview.h"
#include "authoring/slide_list/selection.h"
#include "authoring/slide_list/stopped_search.h"
#include "document/main_caption.h"
#include "document/slide_rows.h"
#include "model/windows/slide_list.h"

namespace authoring {

namespace {

constexpr int kKeyInsert = 45;
constexpr int kKeyDelete = 46;

bool SomeAreHidden(const model::ListBox& list) {
    for (int row = 0; row < list.ListCount(); ++row) {
        if (!list.Seen(row)) {
            return true;
        }
    }
    return false;
}

void Command4_Click(Application& app) {
    const model::ListBox& list = app.windows.form3.List1;
    if (StoppedSearch(app) || list.ListCount() == 0) {
        return;
    }
    Text question = u"スライドリストをすべて消去しますか ?";
    if (SomeAreHidden(list)) {
        question += u"\r\n（絞り込みで表示されていない項目も消去されます。）";
    }
    if (app.platform.dialogs.Message(question, platform::kYesNoQuestion, u"一括取消") !=
        platform::Answer::Yes) {
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
    DisableSlideButtons(app);
    ClearPreview(app);
    app.windows.SetPointer(model::kPointerNormal);
}

/// The nearest row in that direction that is seen; -1 at the end.
int Neighbour(const model::ListBox& list, int row, int direction) {
    for (int other = row + direction; other >= 0 && other < list.ListCount(); other += direction) {
        if (list.Seen(other)) {
            return other;
        }
    }
    return -1;
}

/// Kept: the preview is on afterwards, whatever it was.
void MoveSlide(Application& app, int direction, TextView title) {
    if (StoppedSearch(app)) {
        return;
    }
    model::Form3& form3 = app.windows.form3;
    const std::optional<int> row = AskForOneSlide(app, title);
    const int other = row ? Neighbour(form3.List1, *row, direction) : -1;
    if (other < 0) {
        return;
    }
    document::SwapRows(document::SlideRows(app), *row, other);
    for (model::ListBox* list : {&form3.List1, &form3.List2}) {
        list->Select(*row, false);
        list->Select(other, true);
        list->ListIndex = other;
    }
    form3.Check1.Value = 1;
    app.state.ListShowPicture = 1;
}

void List1_KeyDown(Application& app, int code) {
    if (code == kKeyInsert) {
        app.windows.form3.Check6.Press();
    } else if (code == kKeyDelete) {
        RemoveSelectedSlides(app);
    }
}

}  // namespace

void RemoveSelectedSlides(Application& app) {
    if (StoppedSearch(app)) {
        return;
    }
    const std::vector<int> rows = SelectedSlides(app);
    if (!rows.empty()) {
        document::RemoveRows(document::SlideRows(app), rows);
        app.state.ResumeIndex = 0;
    }
    DisableSlideButtons(app);
    ClearPreview(app);
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

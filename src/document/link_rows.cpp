#include "document/link_rows.h"

#include "model/windows/link_list.h"

namespace document {

namespace {

bool FollowIdentity(Application& app, bool changed) {
    if (changed) {
        ShowLinkCaption(app);
    }
    return changed;
}

}  // namespace

void ShowLinkCaption(Application& app) {
    const model::ShowState& state = app.state;
    const Text& shown =
        state.LinkDocumentPath.empty() ? state.LinkDocumentName : state.LinkDocumentPath;
    app.windows.form9.Caption =
        shown.empty() ? Text(model::Form9::kFirstCaption) : u"ＫＶＳリンク - " + shown;
}

EditedList LinkRows(Application& app) {
    model::Form9& form9 = app.windows.form9;
    return {form9.List1,
            nullptr,
            form9.Label4,
            form9.history,
            {&app.state.LinkDocumentPath, &app.state.LinkDocumentName}};
}

bool UndoLinkRows(Application& app) {
    return FollowIdentity(app, Undo(LinkRows(app)));
}

bool RedoLinkRows(Application& app) {
    return FollowIdentity(app, Redo(LinkRows(app)));
}

}  // namespace document

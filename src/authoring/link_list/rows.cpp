#include "authoring/link_list/rows.h"

#include "authoring/link_list/links.h"
#include "authoring/shared/list_clipboard.h"
#include "authoring/shared/list_filter.h"
#include "authoring/shared/list_history.h"
#include "authoring/shared/list_rows.h"
#include "authoring/shared/list_sorting.h"
#include "document/link_rows.h"
#include "model/windows/link_list.h"

namespace authoring {

namespace {

constexpr TextView kFullTitleOfDrop = u"ＫＶＳリンクリスト";

/// All rows go, and the link document that they came from.
void ForgetRows(Application& app) {
    const document::UndoStep step(document::LinkRows(app));
    document::ClearRows(document::LinkRows(app));
    app.state.LinkDocumentPath.clear();
    app.state.LinkDocumentName.clear();
    document::ShowLinkCaption(app);
}

void Command4_Click(Application& app) {
    const ListWindow links = Links(app);
    if (!StoppedWork(links) && links.list.rows.ListCount() > 0 &&
        AskToClear(links, u"ＫＶＳリンクリストをすべて消去しますか ?")) {
        ForgetRows(app);
        NoteChange(links);
    }
}

void RemoveSelectedLinks(Application& app) {
    const ListWindow links = Links(app);
    if (!StoppedWork(links) && RemoveSelectedRows(links)) {
        NoteChange(links);
    }
}

void MoveLink(Application& app, int direction, TextView title) {
    const ListWindow links = Links(app);
    if (!StoppedWork(links) && MoveSelectedRow(links, direction, title)) {
        NoteChange(links);
    }
}

void GoBack(Application& app, bool (*back)(Application& app)) {
    const ListWindow links = Links(app);
    if (!StoppedWork(links) && back(app)) {
        NoteChange(links);
    }
}

void AttachAdding(Application& app) {
    model::Form9& form9 = app.windows.form9;
    const ListWindow links = Links(app);
    form9.File1.Click = [links, &form9] { AddClickedFile(links, form9.File1); };
    form9.Command3.Click = [links, &form9] { AddFolderFiles(links, ShownFiles(form9.File1)); };
    form9.List1.FilesDropped = [links](const std::vector<Text>& paths) {
        AddDroppedFiles(links, paths, kFullTitleOfDrop);
    };
}

void List1_KeyDown(Application& app, int code) {
    if (code == model::kKeyInsert) {
        app.windows.form9.Check4.Press();
    } else if (code == model::kKeyDelete) {
        RemoveSelectedLinks(app);
    }
}

void AttachChanging(Application& app) {
    model::Form9& form9 = app.windows.form9;
    form9.Command4.Click = [&app] { Command4_Click(app); };
    form9.Command5.Click = [&app] { RemoveSelectedLinks(app); };
    form9.Command11.Click = [&app] { MoveLink(app, -1, u"↑移動不可"); };
    form9.Command12.Click = [&app] { MoveLink(app, 1, u"↓移動不可"); };
    form9.List1.KeyDown = [&app](int code) { List1_KeyDown(app, code); };
    form9.List1.RowsDragged = [&app](int before) { MoveDraggedRows(Links(app), before); };
}

}  // namespace

void ClearLinkList(Application& app) {
    ForgetRows(app);
    app.state.LinkList.Erase();
    app.state.LinkEnd = 0;
    app.state.LinkRunning = 0;
    app.state.LinkListDirty = 0;
}

void AttachLinkRows(Application& app) {
    model::Form9& form9 = app.windows.form9;
    const ListWindow links = Links(app);
    AttachAdding(app);
    AttachChanging(app);
    AttachHistory(
        {form9.history, form9.Undo, form9.Redo, form9.mnuUNDO, form9.mnuREDO},
        [&app] { GoBack(app, document::UndoLinkRows); },
        [&app] { GoBack(app, document::RedoLinkRows); });
    AttachClipboardRows(
        links, {form9.mnuCUT, form9.mnuCOPY, form9.mnuPASTE, form9.mnuREMOVE, form9.mnuALL},
        [&app] { RemoveSelectedLinks(app); });
    AttachSorting(links, {form9.mnuSORTNAME, form9.mnuSORTDATE, form9.mnuSORTFOLDER,
                          form9.mnuSHUFFLE, form9.mnuREVERSE, nullptr});
    AttachFilter(links, form9.Filter, form9.SeenCount, u"件");
}

}  // namespace authoring

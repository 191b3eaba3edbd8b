#include "authoring/slide_list/clipboard_rows.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "authoring/slide_list/adding.h"
#include "authoring/slide_list/list_work.h"
#include "authoring/slide_list/rows.h"
#include "authoring/slide_list/selection.h"
#include "document/slide_rows.h"
#include "model/windows/slide_list.h"
#include "text/paths.h"

namespace authoring {

namespace {

using model::Application;

/// Rows that went to the clipboard, and how it gives them back: as long as it still does, they are
/// what it holds, with all that files alone do not have.
struct CopiedRows {
    std::vector<model::ListRow> rows;
    std::vector<Text> files;
    Text text;
};

/// As other programs know the file.
Text NativePath(Application& app, const Text& path) {
    return text::IsNativePath(path) ? path : text::FromUtf8(app.platform.files.NativeTarget(path));
}

/// False, and the clipboard stays, where no row is selected.
bool Copy(Application& app, CopiedRows& copied) {
    const document::EditedList list = document::SlideRows(app);
    const std::vector<int> selected = SelectedSlides(app);
    if (selected.empty()) {
        return false;
    }
    copied.rows.clear();
    std::vector<Text> paths;
    for (const int row : selected) {
        copied.rows.push_back(document::RowAt(list, row));
        paths.push_back(NativePath(app, copied.rows.back().path));
    }
    platform::Clipboard& clipboard = app.platform.clipboard;
    clipboard.PutFiles(paths);
    copied.files = clipboard.GetFiles();
    copied.text = clipboard.GetText();
    return true;
}

/// Files of the list's kinds that are there. None when the person stopped the asking.
std::vector<model::ListRow> RowsOfFiles(Application& app, std::vector<Text> files) {
    std::erase_if(files, [](const Text& path) { return !IsDroppedKind(path); });
    if (files.empty()) {
        return {};
    }
    ListWork work(app, u"貼り付け中");
    const std::optional<FactsOfFiles> facts =
        AskFacts(app, work, files, platform::FileInquiry::Presence);
    std::vector<model::ListRow> rows;
    for (Text& path : files) {
        if (facts && facts->at(path).there) {
            rows.push_back(document::SlideRow(std::move(path)));
        }
    }
    return rows;
}

void Paste(Application& app, const CopiedRows& copied) {
    platform::Clipboard& clipboard = app.platform.clipboard;
    std::vector<Text> files = clipboard.GetFiles();
    const bool own =
        !copied.rows.empty() && files == copied.files && clipboard.GetText() == copied.text;
    std::vector<model::ListRow> rows = own ? copied.rows : RowsOfFiles(app, std::move(files));
    if (rows.empty()) {
        return;
    }
    model::Form3& form3 = app.windows.form3;
    const std::optional<int> selected = OnlySelectedSlide(app);
    const int end = form3.List1.ListCount();
    app.state.SlideSearchStop = InsertSlides(app, selected.value_or(end), std::move(rows)) ? 0 : 1;
    if (!selected && form3.List1.ListCount() > end) {
        form3.List1.TopIndex = end;
        form3.List2.TopIndex = end;
    }
}

void SelectAll(Application& app) {
    model::ListBox& list = app.windows.form3.List1;
    for (int row = 0; row < list.ListCount(); ++row) {
        const int first = row;
        const bool seen = list.Seen(first);
        while (row + 1 < list.ListCount() && list.Seen(row + 1) == seen) {
            ++row;
        }
        list.SelectRows(first, row + 1 - first, seen);
    }
    FollowSelection(app);
}

}  // namespace

void AttachClipboardRows(Application& app) {
    model::Form3& form3 = app.windows.form3;
    const auto copied = std::make_shared<CopiedRows>();
    AttachCommand(app, form3.mnuCUT, u"Ctrl+X", [copied](Application& application) {
        if (Copy(application, *copied)) {
            RemoveSelectedSlides(application);
        }
    });
    AttachCommand(app, form3.mnuCOPY, u"Ctrl+C",
                  [copied](Application& application) { Copy(application, *copied); });
    AttachCommand(app, form3.mnuPASTE, u"Ctrl+V",
                  [copied](Application& application) { Paste(application, *copied); });
    AttachCommand(app, form3.mnuREMOVE, u"", RemoveSelectedSlides);
    AttachCommand(app, form3.mnuALL, u"Ctrl+A", SelectAll);
    // The key works in the list alone: among folders it could be meant for them.
    form3.mnuREMOVE.Caption = form3.mnuREMOVE.Caption() + u"\tDel";
}

}  // namespace authoring

#include "authoring/shared/list_clipboard.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "authoring/shared/list_rows.h"
#include "authoring/shared/list_work.h"
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
bool Copy(const ListWindow& window, CopiedRows& copied) {
    const std::vector<int> selected = SelectedRows(window.list.rows);
    if (selected.empty()) {
        return false;
    }
    copied.rows.clear();
    std::vector<Text> paths;
    for (const int row : selected) {
        copied.rows.push_back(document::RowAt(window.list, row));
        paths.push_back(NativePath(window.app, copied.rows.back().path));
    }
    platform::Clipboard& clipboard = window.app.platform.clipboard;
    clipboard.PutFiles(paths);
    copied.files = clipboard.GetFiles();
    copied.text = clipboard.GetText();
    return true;
}

/// Files of the list's kinds that are there. None when the person stopped the asking.
std::vector<model::ListRow> RowsOfFiles(const ListWindow& window, std::vector<Text> files) {
    std::erase_if(files, [&window](const Text& path) { return !window.takes(path); });
    if (files.empty()) {
        return {};
    }
    ListWork work(window, u"貼り付け中");
    const std::optional<FactsOfFiles> facts =
        AskFacts(window.app, work, files, platform::FileInquiry::Presence);
    std::vector<model::ListRow> rows;
    for (Text& path : files) {
        if (facts && facts->at(path).there) {
            rows.push_back(window.rowOf(std::move(path)));
        }
    }
    return rows;
}

void Paste(const ListWindow& window, const CopiedRows& copied) {
    platform::Clipboard& clipboard = window.app.platform.clipboard;
    std::vector<Text> files = clipboard.GetFiles();
    const bool own =
        !copied.rows.empty() && files == copied.files && clipboard.GetText() == copied.text;
    std::vector<model::ListRow> rows = own ? copied.rows : RowsOfFiles(window, std::move(files));
    if (rows.empty()) {
        return;
    }
    model::ListBox& list = window.list.rows;
    const std::optional<int> selected = OnlySelectedRow(list);
    const int end = list.ListCount();
    window.full = InsertRows(window, selected.value_or(end), std::move(rows)) ? 0 : 1;
    if (!selected && list.ListCount() > end) {
        list.TopIndex = end;
        if (window.list.schedules) {
            window.list.schedules->TopIndex = end;
        }
    }
}

void SelectAll(const ListWindow& window) {
    model::ListBox& list = window.list.rows;
    for (int row = 0; row < list.ListCount(); ++row) {
        const int first = row;
        const bool seen = list.Seen(first);
        while (row + 1 < list.ListCount() && list.Seen(row + 1) == seen) {
            ++row;
        }
        list.SelectRows(first, row + 1 - first, seen);
    }
    window.follow(window.app);
}

}  // namespace

void AttachClipboardRows(const ListWindow& window, const ClipboardEntries& entries,
                         const std::function<void()>& remove) {
    const auto copied = std::make_shared<CopiedRows>();
    AttachCommand(window, entries.cut, u"Ctrl+X", [window, copied, remove] {
        if (Copy(window, *copied)) {
            remove();
        }
    });
    AttachCommand(window, entries.copy, u"Ctrl+C", [window, copied] { Copy(window, *copied); });
    AttachCommand(window, entries.paste, u"Ctrl+V", [window, copied] { Paste(window, *copied); });
    AttachCommand(window, entries.remove, u"", remove);
    AttachCommand(window, entries.all, u"Ctrl+A", [window] { SelectAll(window); });
    // The key works in the list alone: among folders it could be meant for them.
    entries.remove.Caption = entries.remove.Caption() + u"\tDel";
}

}  // namespace authoring

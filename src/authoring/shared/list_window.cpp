#include "authoring/shared/list_window.h"

#include <utility>

namespace authoring {

std::vector<int> SelectedRows(const model::ListBox& list) {
    std::vector<int> rows = list.SelectedRows();
    std::erase_if(rows, [&list](int row) { return !list.Seen(row); });
    return rows;
}

std::optional<int> OnlySelectedRow(const model::ListBox& list) {
    const std::vector<int> rows = SelectedRows(list);
    return rows.size() == 1 ? std::optional(rows.front()) : std::nullopt;
}

std::optional<int> AskForOneRow(Application& app, const model::ListBox& list, TextView title) {
    const std::optional<int> row = OnlySelectedRow(list);
    if (!row) {
        app.platform.dialogs.Message(u"リストから１項目だけ選んで行ってください。",
                                     platform::kExclamation, title);
    }
    return row;
}

bool StoppedWork(const ListWindow& window) {
    const bool runs = window.searching == 1;
    window.searching = 0;
    return runs;
}

void NoteChange(const ListWindow& window) {
    if (window.dirty) {
        *window.dirty = 1;
    }
}

void SayDone(model::Label& notice, Text words) {
    notice.Caption = Text();
    notice.Caption = std::move(words);
}

}  // namespace authoring

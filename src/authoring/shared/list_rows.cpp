#include "authoring/shared/list_rows.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "text/paths.h"

namespace authoring {

namespace {

/// Rows that the list still takes.
int Room(const ListWindow& window) {
    return std::max(0, window.limit - window.list.rows.ListCount());
}

bool ToldFull(const ListWindow& window, TextView title) {
    if (Room(window) > 0) {
        return false;
    }
    window.app.platform.dialogs.Message(u"これ以上登録できません", platform::kPlain,
                                        title.empty() ? window.fullTitle : title);
    return true;
}

/// The row in front of which what is added comes; nothing where it goes to the end.
std::optional<int> InsertionRow(const ListWindow& window) {
    const model::ListBox& rows = window.list.rows;
    const std::optional<int> selected =
        window.insert.Value == 1 ? OnlySelectedRow(rows) : std::nullopt;
    const int current = rows.ListIndex;
    return selected && current >= 0 && rows.Seen(current) ? current : selected;
}

std::vector<model::ListBox*> Boxes(const document::EditedList& list) {
    return list.schedules ? std::vector{&list.rows, list.schedules} : std::vector{&list.rows};
}

void ScrollTo(const ListWindow& window, model::ListBox& box, int top) {
    box.TopIndex = std::clamp(top, 0, std::max(0, window.list.rows.ListCount() - 1));
}

/// After a bulk of so many files, whether they were taken or not.
void ScrollPast(const ListWindow& window, size_t files) {
    const model::ListBox& rows = window.list.rows;
    if (rows.ListCount() > 0) {
        const int top = rows.TopIndex + static_cast<int>(files) - (rows.TopIndex > 0 ? 0 : 1);
        for (model::ListBox* box : Boxes(window.list)) {
            ScrollTo(window, *box, top);
        }
    }
}

bool SomeAreHidden(const model::ListBox& list) {
    for (int row = 0; row < list.ListCount(); ++row) {
        if (!list.Seen(row)) {
            return true;
        }
    }
    return false;
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

}  // namespace

bool InsertRows(const ListWindow& window, int before, std::vector<model::ListRow> rows,
                TextView fullTitle) {
    if (ToldFull(window, fullTitle)) {
        return false;
    }
    const auto room = static_cast<size_t>(Room(window));
    const bool fills = rows.size() >= room;
    rows.resize(std::min(rows.size(), room));
    if (!rows.empty()) {
        document::InsertRows(window.list, before, std::move(rows));
        NoteChange(window);
    }
    return !fills || !ToldFull(window, fullTitle);
}

bool AddRows(const ListWindow& window, std::vector<Text> paths, TextView fullTitle) {
    std::vector<model::ListRow> rows;
    rows.reserve(paths.size());
    for (Text& path : paths) {
        rows.push_back(window.rowOf(std::move(path)));
    }
    const std::optional<int> before = InsertionRow(window);
    const bool room = InsertRows(window, before.value_or(window.list.rows.ListCount()),
                                 std::move(rows), fullTitle);
    if (before && window.list.schedules) {
        window.list.schedules->ListIndex = window.list.rows.ListIndex();
    }
    return room;
}

void AddClickedFile(const ListWindow& window, const model::FileList& files, TextView fullTitle) {
    const Text& name = files.List(files.ListIndex);
    if (name.empty() || !AddRows(window, {text::WithSeparator(files.Path()) + name}, fullTitle)) {
        return;
    }
    if (window.list.rows.ListCount() > 1) {
        for (model::ListBox* box : Boxes(window.list)) {
            ScrollTo(window, *box, box->TopIndex + 1);
        }
    }
}

void AddFolderFiles(const ListWindow& window, std::vector<Text> paths, TextView fullTitle) {
    window.full = 0;
    const size_t count = paths.size();
    if (AddRows(window, std::move(paths), fullTitle)) {
        ScrollPast(window, count);
    } else {
        window.full = 1;
        window.searching = 0;
    }
}

std::vector<Text> ShownFiles(const model::FileList& files) {
    const Text inside = text::WithSeparator(files.Path());
    std::vector<Text> paths;
    for (const Text& name : files.Rows()) {
        paths.push_back(inside + name);
    }
    return paths;
}

void AddDroppedFiles(const ListWindow& window, const std::vector<Text>& paths, TextView fullTitle) {
    window.full = 0;
    std::vector<Text> taken;
    std::copy_if(paths.begin(), paths.end(), std::back_inserter(taken), window.takes);
    if (AddRows(window, std::move(taken), fullTitle)) {
        ScrollPast(window, paths.size());
    } else {
        window.full = 1;
    }
}

bool RemoveSelectedRows(const ListWindow& window) {
    const std::vector<int> rows = SelectedRows(window.list.rows);
    if (rows.empty()) {
        return false;
    }
    document::RemoveRows(window.list, rows);
    return true;
}

bool AskToClear(const ListWindow& window, TextView question) {
    Text asked(question);
    if (SomeAreHidden(window.list.rows)) {
        asked += u"\r\n（絞り込みで表示されていない項目も消去されます。）";
    }
    return window.app.platform.dialogs.Message(asked, platform::kYesNoQuestion, u"一括取消") ==
           platform::Answer::Yes;
}

bool MoveSelectedRow(const ListWindow& window, int direction, TextView title) {
    const std::optional<int> row = AskForOneRow(window.app, window.list.rows, title);
    const int other = row ? Neighbour(window.list.rows, *row, direction) : -1;
    if (other < 0) {
        return false;
    }
    document::SwapRows(window.list, *row, other);
    for (model::ListBox* box : Boxes(window.list)) {
        box->Select(*row, false);
        box->Select(other, true);
        box->ListIndex = other;
    }
    return true;
}

void MoveDraggedRows(const ListWindow& window, int before) {
    if (!StoppedWork(window)) {
        document::MoveRows(window.list, SelectedRows(window.list.rows), before);
        NoteChange(window);
    }
}

}  // namespace authoring

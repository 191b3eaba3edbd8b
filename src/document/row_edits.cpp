#include "document/row_edits.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <string>

namespace document {

namespace {

using model::InsertEdit;
using model::ListRow;
using model::MoveEdit;
using model::RemoveEdit;
using model::ReplaceEdit;
using model::RowEdit;
using model::RowHistory;
using model::RowSelection;
using model::RowStep;

std::vector<model::ListBox*> Boxes(const EditedList& list) {
    return list.schedules ? std::vector{&list.rows, list.schedules} : std::vector{&list.rows};
}

RowSelection SelectionOf(const model::ListBox& rows) {
    RowSelection selection{{}, rows.ListIndex, rows.TopIndex};
    for (int row = 0; row < rows.ListCount(); ++row) {
        const int first = row;
        while (rows.Selected(row)) {
            ++row;
        }
        if (row > first) {
            selection.runs.emplace_back(first, row - first);
        }
    }
    return selection;
}

void Restore(const EditedList& list, const RowSelection& selection) {
    for (model::ListBox* box : Boxes(list)) {
        box->SelectRows(0, box->ListCount(), false);
        for (const auto& [first, count] : selection.runs) {
            box->SelectRows(first, count, true);
        }
        box->ListIndex = selection.current;
        if (box->TopIndex == selection.top) {
            box->TopIndex =
                selection.top + 1;  // news also for a view that followed the current row
        }
        box->TopIndex = selection.top;
    }
}

std::vector<Text> IdentityOf(const EditedList& list) {
    std::vector<Text> values;
    for (const Text* field : list.identity) {
        values.push_back(*field);
    }
    return values;
}

/// A MoveEdit as what comes where within the rows that it touches.
struct Order {
    int first = 0;
    std::vector<int> rows;  // place first + i is taken by this row

    explicit Order(const MoveEdit& edit) {
        const auto from = std::minmax_element(edit.from.begin(), edit.from.end());
        const auto to = std::minmax_element(edit.to.begin(), edit.to.end());
        first = std::min(*from.first, *to.first);
        const auto size = static_cast<size_t>(std::max(*from.second, *to.second) - first + 1);
        std::vector<bool> moves(size), taken(size);
        rows.resize(size);
        for (size_t i = 0; i < edit.from.size(); ++i) {
            moves[Place(edit.from[i])] = true;
            taken[Place(edit.to[i])] = true;
            rows[Place(edit.to[i])] = edit.from[i];
        }
        size_t place = 0;
        for (size_t row = 0; row < size; ++row) {
            if (!moves[row]) {
                while (taken[place]) {
                    ++place;
                }
                rows[place++] = first + static_cast<int>(row);
            }
        }
    }

    int NewPlaceOf(int row) const {
        const auto found = std::find(rows.begin(), rows.end(), row);
        return found == rows.end() ? row : first + static_cast<int>(found - rows.begin());
    }

private:
    size_t Place(int row) const { return static_cast<size_t>(row - first); }
};

RowEdit Carry(const EditedList& list, InsertEdit edit) {
    std::vector<Text> paths, schedules;
    for (ListRow& row : edit.rows) {
        paths.push_back(std::move(row.path));
        schedules.push_back(std::move(row.schedule));
    }
    list.rows.InsertRows(edit.first, std::move(paths));
    if (list.schedules) {
        list.schedules->InsertRows(edit.first, std::move(schedules));
    }
    return RemoveEdit{edit.first, static_cast<int>(edit.rows.size())};
}

RowEdit Carry(const EditedList& list, RemoveEdit edit) {
    InsertEdit back{edit.first, {}};
    for (Text& path : list.rows.RemoveRows(edit.first, edit.count)) {
        back.rows.push_back({std::move(path), {}});
    }
    if (list.schedules) {
        size_t i = 0;
        for (Text& schedule : list.schedules->RemoveRows(edit.first, edit.count)) {
            back.rows[i++].schedule = std::move(schedule);
        }
    }
    for (model::ListBox* box : Boxes(list)) {
        if (box->ListCount() == 0) {
            box->Clear();  // nothing is current or seen first
        }
    }
    return back;
}

RowEdit Carry(const EditedList& list, ReplaceEdit edit) {
    for (size_t i = 0; i < edit.places.size(); ++i) {
        ListRow old = RowAt(list, edit.places[i]);
        if (old.path != edit.rows[i].path) {
            list.rows.SetRow(edit.places[i], std::move(edit.rows[i].path));
        }
        if (list.schedules && old.schedule != edit.rows[i].schedule) {
            list.schedules->SetRow(edit.places[i], std::move(edit.rows[i].schedule));
        }
        edit.rows[i] = std::move(old);
    }
    return edit;
}

RowEdit Carry(const EditedList& list, MoveEdit edit) {
    const Order order(edit);
    for (model::ListBox* box : Boxes(list)) {
        box->Reorder(order.first, order.rows);
    }
    std::swap(edit.from, edit.to);
    return edit;
}

RowEdit CarryOut(const EditedList& list, RowEdit edit) {
    return std::visit([&list](auto& kind) { return Carry(list, std::move(kind)); }, edit);
}

/// Rows added one after the other are one change.
void Record(RowHistory& history, RowEdit back) {
    if (auto* const added = std::get_if<RemoveEdit>(&back); added && !history.open.edits.empty()) {
        auto* const before = std::get_if<RemoveEdit>(&history.open.edits.back());
        if (before && before->first + before->count == added->first) {
            before->count += added->count;
            return;
        }
    }
    history.open.edits.push_back(std::move(back));
}

void ShowCount(const EditedList& list) {
    list.count.Caption = text::FromUtf8(std::to_string(list.rows.ListCount()));
}

/// `placeOf`: where a current row is found afterwards.
void Change(const EditedList& list, std::vector<RowEdit> edits,
            const std::function<int(int)>& placeOf) {
    const UndoStep step(list);
    std::vector<std::pair<model::ListBox*, int>> currents;
    for (model::ListBox* box : Boxes(list)) {
        currents.emplace_back(box, box->ListIndex);
    }
    for (RowEdit& edit : edits) {
        Record(list.history, CarryOut(list, std::move(edit)));
    }
    for (const auto& [box, current] : currents) {
        if (current >= 0) {
            box->ListIndex = std::min(placeOf(current), box->ListCount() - 1);
        }
    }
    ShowCount(list);
}

void Move(const EditedList& list, MoveEdit edit) {
    if (edit.from == edit.to) {
        return;
    }
    const Order order(edit);
    Change(list, {std::move(edit)}, [&](int row) { return order.NewPlaceOf(row); });
}

/// In ascending order, each once.
void KeepThoseThere(const EditedList& list, std::vector<int>& rows) {
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    std::erase_if(rows, [&](int row) { return row < 0 || row >= list.rows.ListCount(); });
}

int CountBelow(const std::vector<int>& ascending, int row) {
    return static_cast<int>(std::lower_bound(ascending.begin(), ascending.end(), row) -
                            ascending.begin());
}

std::vector<int> Following(int first, size_t count) {
    std::vector<int> rows(count);
    std::iota(rows.begin(), rows.end(), first);
    return rows;
}

bool GoBack(const EditedList& list, std::deque<RowStep>& from, std::deque<RowStep>& to) {
    if (list.history.depth > 0 || from.empty()) {
        return false;
    }
    RowStep step = std::move(from.back());
    from.pop_back();
    RowStep back;
    back.selection = SelectionOf(list.rows);
    for (auto edit = step.edits.rbegin(); edit != step.edits.rend(); ++edit) {
        back.edits.push_back(CarryOut(list, std::move(*edit)));
    }
    if (!step.identity.empty()) {
        back.identity = IdentityOf(list);
        for (size_t i = 0; i < step.identity.size(); ++i) {
            *list.identity[i] = std::move(step.identity[i]);
        }
    }
    if (step.exchange) {
        step.exchange();
        back.exchange = std::move(step.exchange);
    }
    Restore(list, step.selection);
    ShowCount(list);
    to.push_back(std::move(back));
    list.history.Changed();
    return true;
}

}  // namespace

UndoStep::UndoStep(EditedList list) : list_(std::move(list)) {
    RowHistory& history = list_.history;
    if (history.depth++ == 0) {
        history.open = {{}, SelectionOf(list_.rows), IdentityOf(list_), {}};
    }
}

UndoStep::~UndoStep() {
    RowHistory& history = list_.history;
    if (--history.depth > 0) {
        return;
    }
    RowStep step = std::move(history.open);
    if (step.identity == IdentityOf(list_)) {
        step.identity.clear();
    }
    if (step.edits.empty() && step.identity.empty() && !step.exchange) {
        return;
    }
    history.redo.clear();
    history.undo.push_back(std::move(step));
    if (history.undo.size() > kMostUndoSteps) {
        history.undo.pop_front();
    }
    history.Changed();
}

void LeaveIdentityAsItIs(const EditedList& list) {
    RowStep& open = list.history.open;
    if (open.edits.empty() && !open.exchange) {
        open.identity = IdentityOf(list);
    }
}

model::ListRow RowAt(const EditedList& list, int row) {
    return {list.rows.List(row), list.schedules ? list.schedules->List(row) : Text()};
}

void InsertRows(const EditedList& list, int before, std::vector<ListRow> rows) {
    if (rows.empty()) {
        return;
    }
    before = std::clamp(before, 0, list.rows.ListCount());
    const auto count = static_cast<int>(rows.size());
    std::vector<RowEdit> edits;
    edits.emplace_back(InsertEdit{before, std::move(rows)});
    Change(list, std::move(edits), [&](int row) { return row < before ? row : row + count; });
}

void AppendRows(const EditedList& list, std::vector<ListRow> rows) {
    InsertRows(list, list.rows.ListCount(), std::move(rows));
}

/// Those that do not follow each other are gathered at the end first: then any number goes at once.
void RemoveRows(const EditedList& list, std::vector<int> rows) {
    KeepThoseThere(list, rows);
    if (rows.empty()) {
        return;
    }
    const auto count = static_cast<int>(rows.size());
    std::vector<RowEdit> edits;
    int first = rows.front();
    if (rows.back() - first + 1 != count) {
        first = list.rows.ListCount() - count;
        edits.emplace_back(MoveEdit{rows, Following(first, rows.size())});
    }
    edits.emplace_back(RemoveEdit{first, count});
    Change(list, std::move(edits), [&](int row) { return row - CountBelow(rows, row); });
}

void MoveRows(const EditedList& list, std::vector<int> rows, int before) {
    KeepThoseThere(list, rows);
    before = std::clamp(before, 0, list.rows.ListCount());
    std::vector<int> places = Following(before - CountBelow(rows, before), rows.size());
    Move(list, {std::move(rows), std::move(places)});
}

void ClearRows(const EditedList& list) {
    RemoveRows(list, Following(0, static_cast<size_t>(list.rows.ListCount())));
}

void SwapRows(const EditedList& list, int row, int other) {
    const int count = list.rows.ListCount();
    if (std::min(row, other) >= 0 && std::max(row, other) < count) {
        Move(list, {{row, other}, {other, row}});
    }
}

void ReorderRows(const EditedList& list, const std::vector<int>& order) {
    MoveEdit edit;
    for (int place = 0; place < static_cast<int>(order.size()); ++place) {
        const int row = order[static_cast<size_t>(place)];
        if (row != place) {
            edit.from.push_back(row);
            edit.to.push_back(place);
        }
    }
    Move(list, std::move(edit));
}

void ReplaceRows(const EditedList& list, const std::vector<int>& places,
                 std::vector<ListRow> rows) {
    ReplaceEdit edit;
    for (size_t i = 0; i < places.size(); ++i) {
        if (rows[i] != RowAt(list, places[i])) {
            edit.places.push_back(places[i]);
            edit.rows.push_back(std::move(rows[i]));
        }
    }
    if (!edit.places.empty()) {
        std::vector<RowEdit> edits;
        edits.emplace_back(std::move(edit));
        Change(list, std::move(edits), [](int row) { return row; });
    }
}

bool Undo(const EditedList& list) {
    return GoBack(list, list.history.undo, list.history.redo);
}

bool Redo(const EditedList& list) {
    return GoBack(list, list.history.redo, list.history.undo);
}

void ForgetSteps(const EditedList& list) {
    list.history.undo.clear();
    list.history.redo.clear();
    list.history.open = {{}, SelectionOf(list.rows), IdentityOf(list), {}};
    list.history.Changed();
}

}  // namespace document

// What was done to the rows of a list, kept so that it can be taken back.
#pragma once

#include <deque>
#include <functional>
#include <utility>
#include <variant>
#include <vector>

#include "model/property.h"
#include "text/text.h"

namespace model {

/// A row as it goes into a list or comes out of it.
struct ListRow {
    Text path;
    Text schedule;  // 30 columns; empty in lists without schedules
    bool operator==(const ListRow&) const = default;
};

// Changes of rows as data. Carrying one out leaves the change that takes it back.
struct InsertEdit {
    int first;
    std::vector<ListRow> rows;
};
struct RemoveEdit {
    int first, count;
};
struct ReplaceEdit {
    std::vector<int> places;
    std::vector<ListRow> rows;
};
/// Row from[i] goes to place to[i]; the others keep their order and fill the places that are left.
struct MoveEdit {
    std::vector<int> from, to;
};
using RowEdit = std::variant<InsertEdit, RemoveEdit, ReplaceEdit, MoveEdit>;

struct RowSelection {
    std::vector<std::pair<int, int>> runs;  // first row and count of each
    int current = -1;
    int top = 0;
};

/// What goes back at once.
struct RowStep {
    std::vector<RowEdit> edits;  // the last one is carried out first
    RowSelection selection;      // to be restored
    std::vector<Text> identity;  // to be restored; empty: the step left it alone
    /// Puts back what else the step replaced, and keeps what stood there instead; may be empty.
    std::function<void()> exchange;
};

struct RowHistory {
    std::deque<RowStep> undo, redo;  // the newest at the end
    RowStep open;                    // while depth is above 0
    int depth = 0;
    Event<> Changed;  // something can be taken back or done again that could not, or no longer
};

}  // namespace model

// Changes of the rows of a list that a person edits. Each keeps rows, schedules and the shown count
// in step and can be undone. The current row (ListIndex) stays the current one.
#pragma once

#include <utility>
#include <vector>

#include "model/controls.h"
#include "model/list_controls.h"
#include "model/row_history.h"

namespace document {

/// A list with all that goes with its rows. Made anew wherever it is wanted.
struct EditedList {
    model::ListBox& rows;
    model::ListBox* schedules;  // as many rows; null for a list without schedules
    model::Label& count;
    model::RowHistory& history;
    std::vector<Text*> identity;  // fields that name the list's document
};

/// Steps that are kept; the oldest ones are forgotten.
constexpr int kMostUndoSteps = 200;

/// All changes of the list while one of these lives are one step, changes of its identity too; a
/// change outside is a step of its own. One inside another belongs to the outer one. A step that
/// changed nothing leaves no trace; another one ends what could be redone.
class UndoStep {
public:
    explicit UndoStep(EditedList list);
    ~UndoStep();
    UndoStep(const UndoStep&) = delete;
    UndoStep& operator=(const UndoStep&) = delete;

private:
    EditedList list_;
};

/// Within a step that has changed nothing else so far: the identity as it is now does not belong to
/// it, so that it may still leave no trace.
void LeaveIdentityAsItIs(const EditedList& list);

/// A row that is there.
model::ListRow RowAt(const EditedList& list, int row);

/// In front of row `before` (ListCount: at the end), in their order, not selected.
void InsertRows(const EditedList& list, int before, std::vector<model::ListRow> rows);
void AppendRows(const EditedList& list, std::vector<model::ListRow> rows);

// Rows that are not there are left out here; their order, and a row named twice, does not matter.
void RemoveRows(const EditedList& list, std::vector<int> rows);
/// In front of row `before`, as a person drags them: they keep their order and their selection.
void MoveRows(const EditedList& list, std::vector<int> rows, int before);
void ClearRows(const EditedList& list);

/// The two change places, selection and schedule with them. Nothing where one is not there.
void SwapRows(const EditedList& list, int row, int other);
/// Row i becomes what row order[i] is now: `order` holds every row once.
void ReorderRows(const EditedList& list, const std::vector<int>& order);
/// Rows that are there, each named once, and what they shall be.
void ReplaceRows(const EditedList& list, const std::vector<int>& places,
                 std::vector<model::ListRow> rows);

/// Take back the last step, and carry it out again: rows, selection, current and first seen row,
/// identity. False, and nothing happens, without such a step and while one is under way.
bool Undo(const EditedList& list);
bool Redo(const EditedList& list);
/// Nothing can be undone or redone any more.
void ForgetSteps(const EditedList& list);

}  // namespace document

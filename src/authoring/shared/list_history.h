// The buttons and menu entries by which a person takes changes of a list back.
#pragma once

#include <functional>

#include "model/controls.h"
#include "model/menu.h"
#include "model/row_history.h"

namespace authoring {

/// Of one list's window.
struct HistoryFace {
    model::RowHistory& history;
    model::Button& undo;
    model::Button& redo;
    model::MenuEntry& undoEntry;
    model::MenuEntry& redoEntry;
};

/// Each is enabled exactly while there is something to take back or to do again.
void AttachHistory(const HistoryFace& face, const std::function<void()>& undo,
                   const std::function<void()>& redo);

}  // namespace authoring

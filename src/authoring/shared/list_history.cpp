#include "authoring/shared/list_history.h"

namespace authoring {

namespace {

void FollowHistory(const HistoryFace& face) {
    const bool undo = !face.history.undo.empty();
    const bool redo = !face.history.redo.empty();
    face.undo.Enabled = undo;
    face.undoEntry.Enabled = undo;
    face.redo.Enabled = redo;
    face.redoEntry.Enabled = redo;
}

}  // namespace

void AttachHistory(const HistoryFace& face, const std::function<void()>& undo,
                   const std::function<void()>& redo) {
    face.undoEntry.Shortcut = u"Ctrl+Z";
    face.redoEntry.Shortcut = u"Ctrl+Shift+Z; Ctrl+Y";
    face.undo.Click = undo;
    face.undoEntry.Click = undo;
    face.redo.Click = redo;
    face.redoEntry.Click = redo;
    face.history.Changed = [face] { FollowHistory(face); };
    FollowHistory(face);
}

}  // namespace authoring

// Widgets of a form that stand for entries of its window's menus.
#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QToolButton>

#include "adapters/qt/menu_binding.h"

namespace qt_adapter {

/// The button is the entry: pressed, marked and enabled as that one. It keeps its icon and words.
void TieToEntry(QToolButton& button, QAction& entry);

/// The button opens the menu.
void TieToMenu(QToolButton& button, QAction& menu);

/// What one place of a context menu is: an entry, a menu or a button of the form; neither of them
/// is a line between groups.
struct ContextPlace {
    QAction* action = nullptr;
    QAbstractButton* button = nullptr;
};

/// A right press or the menu key brings the menu. Its buttons are named, enabled and pressed as
/// those in sight.
void GiveContextMenu(QAbstractItemView& view, const QList<ContextPlace>& places);

/// The entry's key is the entry's only while the view has the keyboard.
void KeepKeyIn(QAbstractItemView& view, QAction& entry);

}  // namespace qt_adapter

// Widgets of a form that stand for entries of its window's menus.
#pragma once

#include <QAbstractItemView>
#include <QToolButton>

#include "adapters/qt/menu_binding.h"

namespace qt_adapter {

/// The button is the entry: pressed, marked and enabled as that one. It keeps its icon and words.
void TieToEntry(QToolButton& button, QAction& entry);

/// The button opens the menu.
void TieToMenu(QToolButton& button, QAction& menu);

/// A right press or the menu key brings the entries of the first menu, and the others as submenus.
void GiveContextMenu(QAbstractItemView& view, const QList<QAction*>& menus);

/// The entry's key is the entry's only while the view has the keyboard.
void KeepKeyIn(QAbstractItemView& view, QAction& entry);

}  // namespace qt_adapter

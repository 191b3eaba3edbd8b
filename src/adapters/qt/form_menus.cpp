#include "adapters/qt/form_menus.h"

#include <QAction>
#include <QMenu>

namespace qt_adapter {

void TieToEntry(QToolButton& button, QAction& entry) {
    const auto follow = [&button, &entry] {
        button.setEnabled(entry.isEnabled());
        button.setVisible(entry.isVisible());
        button.setCheckable(entry.isCheckable());
        button.setChecked(entry.isChecked());
    };
    QObject::connect(&entry, &QAction::changed, &button, follow);
    QObject::connect(&button, &QToolButton::clicked, &entry, [&entry, follow] {
        entry.trigger();
        follow();  // the press has moved the mark by itself
    });
    entry.setIcon(button.icon());
    follow();
}

void TieToMenu(QToolButton& button, QAction& menu) {
    button.setMenu(menu.menu());
    button.setPopupMode(QToolButton::InstantPopup);
    QObject::connect(&menu, &QAction::changed, &button,
                     [&button, &menu] { button.setEnabled(menu.isEnabled()); });
}

void GiveContextMenu(QAbstractItemView& view, const QList<QAction*>& menus) {
    view.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&view, &QWidget::customContextMenuRequested, &view,
                     [&view, menus](const QPoint& place) {
                         QMenu menu(&view);
                         menu.addActions(menus.front()->menu()->actions());
                         menu.addSeparator();
                         menu.addActions(menus.mid(1));
                         menu.exec(view.viewport()->mapToGlobal(place));
                     });
}

void KeepKeyIn(QAbstractItemView& view, QAction& entry) {
    entry.setShortcutContext(Qt::WidgetWithChildrenShortcut);
    view.addAction(&entry);
}

}  // namespace qt_adapter

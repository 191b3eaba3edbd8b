#include "adapters/qt/form_menus.h"

#include <QAction>
#include <QMenu>

namespace qt_adapter {

namespace {

/// A button whose caption is a sign alone is called by what it does, too.
QString EntryWords(const QAbstractButton& button) {
    const QString name = button.accessibleName();
    return name.isEmpty() || name == button.text() ? button.text()
                                                   : button.text() + QStringLiteral("  ") + name;
}

void AddButton(QMenu& menu, QAbstractButton& button) {
    QAction* const entry = menu.addAction(button.icon(), EntryWords(button));
    entry->setEnabled(button.isEnabled());
    QObject::connect(entry, &QAction::triggered, &button, [&button] { button.click(); });
}

}  // namespace

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

void GiveContextMenu(QAbstractItemView& view, const QList<ContextPlace>& places) {
    view.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&view, &QWidget::customContextMenuRequested, &view,
                     [&view, places](const QPoint& where) {
                         QMenu menu(&view);
                         for (const ContextPlace& place : places) {
                             if (place.action) {
                                 menu.addAction(place.action);
                             } else if (place.button) {
                                 AddButton(menu, *place.button);
                             } else {
                                 menu.addSeparator();
                             }
                         }
                         menu.exec(view.viewport()->mapToGlobal(where));
                     });
}

void KeepKeyIn(QAbstractItemView& view, QAction& entry) {
    entry.setShortcutContext(Qt::WidgetWithChildrenShortcut);
    view.addAction(&entry);
}

}  // namespace qt_adapter

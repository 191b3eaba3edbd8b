// A window's menu bar, built from its menu entries and following them.
#pragma once

#include <QHash>
#include <QObject>
#include <vector>

#include "adapters/qt/gate.h"
#include "model/menu.h"
#include "model/window.h"

class QAction;
class QActionGroup;
class QMenuBar;
class QWidget;

namespace qt_adapter {

class MenuBinding : public QObject, public model::Listener {
public:
    /// Fills `bar` with the window's entries. Actions bear the entries' names ("mnuKUFL_1").
    MenuBinding(model::Window& window, QMenuBar& bar, Gate& gate);
    ~MenuBinding() override;

    void PropertyChanged(model::Control& control, model::PropertyBase& property) override;

    /// The action of an entry ("mnuFACE(0)"); null for a name that is not there. That of a menu has
    /// the menu.
    QAction* ActionOf(const QString& entry) const;

private:
    void Add(model::MenuEntry& entry, QWidget& menu);
    void AddChildren(model::MenuEntry& entry, QWidget& menu);
    void Sync(const model::MenuEntry& entry);
    void Chosen(model::MenuEntry& entry);

    Gate& gate_;
    std::vector<model::MenuEntry*> entries_;
    QHash<const model::Control*, QAction*> actions_;
};

}  // namespace qt_adapter

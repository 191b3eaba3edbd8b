#include "adapters/qt/menu_binding.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

#include "adapters/qt/convert.h"
#include "adapters/qt/form_loader.h"

namespace qt_adapter {

namespace {

/// "mnuKUFL" of "mnuKUFL(1)"; empty for an entry that is no element of an array.
std::string ArrayName(const model::MenuEntry& entry) {
    const size_t bracket = entry.Name().find('(');
    return bracket == std::string::npos ? std::string() : entry.Name().substr(0, bracket);
}

}  // namespace

MenuBinding::MenuBinding(model::Window& window, QMenuBar& bar, Gate& gate) : gate_(gate) {
    for (model::Control* control : window.Controls()) {
        if (control->Kind() == model::ControlKind::MenuEntry) {
            auto& entry = static_cast<model::MenuEntry&>(*control);
            entries_.push_back(&entry);
            if (!entry.ParentEntry()) {
                Add(entry, bar);
            }
        }
    }
    for (model::MenuEntry* entry : entries_) {
        Sync(*entry);
        entry->Listen(this);
    }
}

MenuBinding::~MenuBinding() {
    for (model::MenuEntry* entry : entries_) {
        entry->Unlisten(this);
    }
}

QAction* MenuBinding::ActionOf(const QString& entry) const {
    for (const model::MenuEntry* each : entries_) {
        if (QString::fromStdString(each->Name()) == entry) {
            return actions_[each];
        }
    }
    return nullptr;
}

void MenuBinding::Add(model::MenuEntry& entry, QWidget& menu) {
    QAction* action = nullptr;
    if (entry.Children().empty()) {
        action = new QAction(&menu);
        menu.addAction(action);
        action->setAutoRepeat(false);  // a key held down is one wish
        connect(action, &QAction::triggered, this, [this, &entry] { Chosen(entry); });
    } else {
        auto* children = new QMenu(&menu);
        menu.addAction(children->menuAction());
        action = children->menuAction();
        AddChildren(entry, *children);
    }
    action->setMenuRole(QAction::NoRole);
    action->setObjectName(WidgetName(entry.Name()));
    actions_.insert(&entry, action);
}

void MenuBinding::AddChildren(model::MenuEntry& entry, QWidget& menu) {
    QHash<QString, QActionGroup*> groups;
    for (model::MenuEntry* child : entry.Children()) {
        Add(*child, menu);
        const QString array = QString::fromStdString(ArrayName(*child));
        if (array.isEmpty()) {
            continue;
        }
        // The group gives the round marks; the model decides which one is set.
        QActionGroup*& group = groups[array];
        if (!group) {
            group = new QActionGroup(&menu);
        }
        actions_[child]->setCheckable(true);
        group->addAction(actions_[child]);
    }
}

void MenuBinding::PropertyChanged(model::Control& control, model::PropertyBase&) {
    Sync(static_cast<model::MenuEntry&>(control));
}

void MenuBinding::Sync(const model::MenuEntry& entry) {
    QAction* action = actions_[&entry];
    action->setText(ToQt(entry.Caption()));
    action->setEnabled(entry.Enabled);
    action->setVisible(entry.Visible);
    action->setShortcuts(
        QKeySequence::listFromString(ToQt(entry.Shortcut()), QKeySequence::PortableText));
    if (entry.Checked && entry.Children().empty()) {
        action->setCheckable(true);
    }
    action->setChecked(entry.Checked);
}

void MenuBinding::Chosen(model::MenuEntry& entry) {
    // The click has moved the mark already; it moves for good only when the model says so.
    for (const model::MenuEntry* other : entries_) {
        if (other->ParentEntry() == entry.ParentEntry()) {
            Sync(*other);
        }
    }
    gate_.Guarded([&] { entry.Choose(); });
}

}  // namespace qt_adapter

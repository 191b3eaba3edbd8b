// Entries of menu bars, and radio menus.
#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "model/control.h"

namespace model {

/// An entry of a menu bar: with children a menu, without a command. Order is that of declaration.
class MenuEntry : public Control {
public:
    MenuEntry(Window* window, std::string name, Text caption, MenuEntry* parentEntry = nullptr);
    Property<Text> Caption;
    Property<bool> Enabled{*this, "Enabled", true};
    Property<bool> Visible{*this, "Visible", true};
    Property<bool> Checked{*this, "Checked", false};
    Property<Text> Shortcut{*this, "Shortcut"};  // "Ctrl+N", "F5"; several: "Ctrl+Y; F6"
    Event<> Click;

    /// A person can choose it: it and all menus above are visible and enabled.
    bool Reachable() const;
    /// A person chooses it. True when a handler heard it; does nothing unless it is Reachable.
    bool Choose() { return Reachable() && Click(); }

    MenuEntry* ParentEntry() const { return parentEntry_; }
    const std::vector<MenuEntry*>& Children() const { return children_; }

private:
    MenuEntry* parentEntry_;
    std::vector<MenuEntry*> children_;
};

/// The entries of a radio menu: index from 0, at most one checked.
class MenuArray {
public:
    MenuArray(Window* window, const std::string& name, MenuEntry& parent,
              std::initializer_list<const char16_t*> captions);
    MenuEntry& operator()(int index) { return *entries_.at(static_cast<size_t>(index)); }
    int Count() const { return static_cast<int>(entries_.size()); }
    const std::string& Name() const { return name_; }
    /// Checks the entry and unchecks the others; an index that is not there unchecks all.
    void Check(int index);
    /// A person chose the entry.
    Event<int> Click;

private:
    std::string name_;
    std::vector<std::unique_ptr<MenuEntry>> entries_;
};

}  // namespace model

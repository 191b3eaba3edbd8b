#include "model/menu.h"

namespace model {

MenuEntry::MenuEntry(Window* window, std::string name, Text caption, MenuEntry* parentEntry)
    : Control(window, ControlKind::MenuEntry, std::move(name)),
      Caption(*this, "Caption", std::move(caption)),
      parentEntry_(parentEntry) {
    if (parentEntry_) {
        parentEntry_->children_.push_back(this);
    }
}

bool MenuEntry::Reachable() const {
    for (const MenuEntry* entry = this; entry; entry = entry->ParentEntry()) {
        if (!entry->Visible || !entry->Enabled) {
            return false;
        }
    }
    return true;
}

MenuArray::MenuArray(Window* window, const std::string& name, MenuEntry& parent,
                     std::initializer_list<const char16_t*> captions)
    : name_(name) {
    int index = 0;
    for (const char16_t* caption : captions) {
        entries_.push_back(std::make_unique<MenuEntry>(
            window, name + "(" + std::to_string(index) + ")", caption, &parent));
        entries_.back()->Click = [this, index] { Click(index); };
        ++index;
    }
}

void MenuArray::Check(int index) {
    for (int i = 0; i < Count(); ++i) {
        (*this)(i).Checked = i == index;
    }
}

}  // namespace model

#include "model/control.h"

#include <algorithm>

#include "model/same_name.h"
#include "model/window.h"

namespace model {

PropertyBase::PropertyBase(Control& owner, const char* name) : owner_(owner), name_(name) {
    owner.properties_.push_back(this);
}

void PropertyBase::Announce() {
    // By index: a listener may add or remove listeners.
    for (size_t i = 0; i < owner_.listeners_.size(); ++i) {
        owner_.listeners_[i]->PropertyChanged(owner_, *this);
    }
}

Control::Control(Window* window, ControlKind kind, std::string name)
    : window_(window), kind_(kind), name_(std::move(name)) {
    if (kind != ControlKind::Window) {
        window->controls_.push_back(this);
    }
}

PropertyBase* Control::FindProperty(std::string_view name) const {
    for (PropertyBase* property : properties_) {
        if (SameName(property->Name(), name)) {
            return property;
        }
    }
    return nullptr;
}

void Control::Listen(Listener* listener) {
    listeners_.push_back(listener);
}

void Control::Unlisten(Listener* listener) {
    std::erase(listeners_, listener);
}

void Control::AnnounceRows(const RowChange& change) {
    for (size_t i = 0; i < listeners_.size(); ++i) {
        listeners_[i]->RowsChanged(*this, change);
    }
}

}  // namespace model

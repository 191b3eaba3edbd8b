#include "model/panes.h"

#include <utility>

namespace model {

Panes::Panes(Window* window, std::string name)
    : VisibleControl(window, ControlKind::Panes, std::move(name)) {}

bool Panes::Move(const Text& sizes) {
    if (!Reachable()) {
        return false;
    }
    Sizes = sizes;
    Moved();
    return true;
}

}  // namespace model

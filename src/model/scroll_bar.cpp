#include "model/scroll_bar.h"

#include <algorithm>

namespace model {

ScrollBar::ScrollBar(Window* window, std::string name, int min, int max)
    : VisibleControl(window, ControlKind::ScrollBar, std::move(name)),
      Min(*this, "Min", min),
      Max(*this, "Max", max),
      Value(*this, "Value", min) {
    Listen(this);
}

bool ScrollBar::MoveTo(int value) {
    if (!Reachable()) {
        return false;
    }
    Value = std::max(Min(), std::min(Max(), value));
    return true;
}

void ScrollBar::PropertyChanged(Control&, PropertyBase& property) {
    if (&property == &Min || &property == &Max) {
        Value = std::max(Min(), std::min(Max(), Value()));
    } else if (&property == &Value) {
        Change();
    }
}

}  // namespace model

// A bar whose slider stands at a number.
#pragma once

#include <string>

#include "model/control.h"

namespace model {

class ScrollBar : public VisibleControl, private Listener {
public:
    ScrollBar(Window* window, std::string name, int min = 0, int max = 32767);
    Property<int> Min;
    Property<int> Max;
    Property<int> Value;
    Property<int> SmallChange{*this, "SmallChange", 1};
    Property<int> LargeChange{*this, "LargeChange", 1};
    Event<> Change;  // Value is another one, whoever changed it

    /// A person moves the slider; beyond the ends it stops there. False unless Reachable.
    bool MoveTo(int value);

private:
    void PropertyChanged(Control& control, PropertyBase& property) override;
};

}  // namespace model

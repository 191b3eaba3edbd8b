// Panes that a person can make wider and narrower.
#pragma once

#include <string>

#include "model/control.h"

namespace model {

/// Neighbouring parts of a window with bars between them that can be dragged.
class Panes : public VisibleControl {
public:
    Panes(Window* window, std::string name);
    /// How the room is shared out, from left or top: numbers with commas between, of any unit, as
    /// only their proportions count. Empty: as the form has it.
    Property<Text> Sizes{*this, "Sizes"};
    Event<> Moved;  // a person moved a bar

    /// A person moves the bars so. False unless Reachable.
    bool Move(const Text& sizes);
};

}  // namespace model

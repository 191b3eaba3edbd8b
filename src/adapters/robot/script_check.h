// What of a script can be found wrong before anything runs, and how its words are understood.
#pragma once

#include <optional>
#include <string>

#include "adapters/robot/script.h"
#include "model/application.h"
#include "model/list_controls.h"

namespace robot {

/// Why the action cannot be done, whatever happens before it: a name that the program does not
/// have, a value that no control of that kind takes. Empty when it can.
std::string WhyNot(model::Application& application, const Action& action);

/// The control, or the window where the action names none; null when there is none of that name.
model::Control* FindTarget(model::Application& application, const Action& action);

/// Null for a control that is no list.
model::ListBox* AsList(model::Control& control);

/// A check or option box's value as scripts write it; nullopt where it is none.
std::optional<bool> OnOrOff(TextView value);

std::optional<int> WholeNumber(TextView value);

}  // namespace robot

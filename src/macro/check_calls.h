// What can be wrong with the values between the brackets of a call.
#pragma once

#include "macro/call_shape.h"
#include "macro/check_findings.h"

namespace macro {

/// Brackets, quotes, how many values there are, and each value. `line` as it is written.
void CheckCall(FindingList& found, const Keyword& keyword, TextView line);

}  // namespace macro

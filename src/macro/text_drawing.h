// Lines of the text section.
#pragma once

#include "macro/run.h"

namespace macro {

/// Draws the line in work with its shadow or outline on both canvases, moves the pens to the next
/// line, and waits DelayMs. Jump when a jump was chosen meanwhile.
Flow DrawTextLine(Run& run);

}  // namespace macro

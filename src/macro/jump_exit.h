// How a macro leaves its slide for another.
#pragma once

#include "macro/run.h"

namespace macro {

/// Takes the macro's buttons and pieces off the screen, lets the next slide follow at once, and
/// keeps SlideIndex within the list.
void LeaveSlide(Run& run);

}  // namespace macro

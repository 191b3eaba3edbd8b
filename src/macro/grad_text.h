// Texts whose colour runs from one to another.
#pragma once

#include "macro/run.h"

namespace macro {

/// GRAD(r,g,b,r,g,b,"text"): first colour, last colour. Both pens end after the text.
Flow DrawGradText(Run& run, double);

}  // namespace macro

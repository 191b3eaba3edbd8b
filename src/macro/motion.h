// MOVPB: a cut-out piece moves, pixel by pixel, while the macro waits.
#pragma once

#include "macro/run.h"

namespace macro {

/// MOVPBnn(x,y,t): moves piece nn by x and y pixels, t milliseconds (1 where left out, at most
/// 1000) between the steps.
Flow MoveCutout(Run& run, double);
/// OVERPIC: bounds of the motion, -1, 0 or 1; others change nothing.
Flow SetMotionBounds(Run& run, double mode);

}  // namespace macro

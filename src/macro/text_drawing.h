// Texts on both canvases: lines of the text section, colour ramps, rotated texts, the scrolling
// line.
#pragma once

#include "macro/run.h"

namespace macro {

/// Draws the line in work with its shadow or outline, moves the pens to the next line, and waits
/// DelayMs. Jump when a jump was chosen meanwhile.
Flow DrawTextLine(Run& run);
/// GRAD(r,g,b,r,g,b,"text")
Flow DrawGradText(Run& run, double);
/// TEXTOUT(h,w,a,"text")
Flow DrawRotatedText(Run& run, double);
/// TELOP(t,s,"text"), TELOP1 once, TELOP2 again and again
Flow StartTelop(Run& run, double);

}  // namespace macro

// What every way of putting text on the canvases is made of.
#pragma once

#include <vector>

#include "macro/run.h"

namespace macro {

/// The most pixels that an outline reaches to each side.
constexpr int kWidestOutline = 10;

/// What of the text is drawn: carriage returns and line feeds leave no mark, a tab is a blank.
Text Printable(TextView text);

/// ZureX and ZureY become their absolute values, 10 at most. That lasts, also for later shadows.
void LimitOutline(Run& run);
/// Where the prints of an outline stand, in their order; the same place comes up to four times,
/// which makes soft edges harder.
std::vector<platform::Offset> OutlineOffsets(const Run& run);
platform::Color OutlineColor(const Run& run);

/// Shadow or outline of a text at the pens, which stay. Leaves TextForeColor as the colour: black
/// when no word has set one. Without KageKind nothing happens.
void DrawUnderlay(Run& run, TextView printable);

/// Prints at the pen, which stays.
void PrintAtPen(Run& run, platform::Canvas& canvas, TextView printable);

/// Moves a pen coordinate; far outside it stands still.
void MovePen(int& coordinate, int by);

/// The canvas of the mode in force.
platform::Canvas& CanvasInForce(Application& app);

/// Tells of a text that was put at `place` of the canvas in force in its colour and font, unless
/// nothing is seen of it.
void TraceText(Run& run, platform::Offset place, TextView text);

}  // namespace macro

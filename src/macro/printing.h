// What every way of putting text on the canvases is made of.
#pragma once

#include <vector>

#include "macro/run.h"

namespace macro {

/// The most units that an outline reaches to each side.
constexpr int kWidestOutline = 10;

/// What of the text is drawn: carriage returns and line feeds leave no mark, a tab is a blank.
Text Printable(TextView text);

/// Where the prints of a shadow or an outline stand on the canvas, in its pixels and in their
/// order. An outline limits ZureX and ZureY; its prints stand a pixel apart, and the same place
/// comes up to four times, which makes soft edges harder. Empty without KageKind.
std::vector<platform::Offset> UnderlayOffsets(Run& run, const platform::Canvas& canvas);
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

/// Traces a text that was put at `place` of the canvas in force in its colour and font, unless
/// nothing is seen of it.
void TraceText(Run& run, platform::Offset place, TextView text);

}  // namespace macro

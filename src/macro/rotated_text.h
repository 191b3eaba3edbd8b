// Texts at any angle and in any width.
#pragma once

#include <functional>
#include <vector>

#include "macro/run.h"

namespace macro {

/// TEXTOUT(h,w,a,"text"): pixels of the line's height, of a letter's width (0: as the font has it),
/// degrees anticlockwise. The pens stay; the line becomes one blank, so that in the text section it
/// counts as one.
Flow DrawRotatedText(Run& run, double);

/// Where the prints of a text stand on a canvas, in its pixels.
using OffsetsOn = std::function<std::vector<platform::Offset>(const platform::Canvas&)>;

/// The text at the pens of both canvases, once for each offset, in their colours. angle10: tenths
/// of a degree.
void DrawRotatedPair(Run& run, int height, int width, int angle10, TextView text,
                     const OffsetsOn& offsetsOn);

}  // namespace macro

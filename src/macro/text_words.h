// Words that set the pen, the font and the colours, on both canvases at once.
#pragma once

#include <array>

#include "macro/run.h"

namespace macro {

/// The window's canvas and the full screen's.
std::array<platform::Canvas*, 2> Canvases(Application& app);

/// Colour 0 to 15 of the fixed palette.
platform::Color QBColor(int index);

/// Fonts, colours and pens of a fresh slide.
void ResetTextOfSlide(Run& run);

Flow SetRgb(Run& run, double);
Flow SetBorderColor(Run& run, double index);
Flow SetLineSpace(Run& run, double pixels);
Flow SetTab(Run& run, double columns);
/// Rewrites its line to CURRENTX with the sum, which then does the work.
Flow MoveX(Run& run, double pixels);
Flow MoveY(Run& run, double pixels);
Flow SetTextOrigin(Run& run, double origin);
Flow SetFontName(Run& run, double);
Flow SetFontItalic(Run& run, double on);
Flow SetFontBold(Run& run, double on);
Flow SetFontUnderline(Run& run, double on);
Flow SetQBColor(Run& run, double index);
Flow SetFontSize(Run& run, double points);
Flow SetFontNo(Run& run, double number);
Flow SetCurrentX(Run& run, double pixels);
Flow SetCurrentY(Run& run, double pixels);
Flow SetKage(Run& run, double kind);
Flow SetZureX(Run& run, double pixels);
Flow SetZureY(Run& run, double pixels);
Flow SetDelay(Run& run, double seconds);

}  // namespace macro

// The Yes and No buttons and the menu buttons that macros place.
#pragma once

#include <array>

#include "macro/run.h"
#include "model/controls.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"

namespace macro {

/// YESNOPB(y,n): stops at two buttons; the one pressed goes on by its number of slides, 0 goes on
/// with the macro.
Flow YesNoButtons(Run& run, double);

/// MENUn(jump,"caption"): places a menu button, or moves and renames it. Any line that begins
/// with MENU makes the slide wait at its end.
Flow MenuButton(Run& run, double);

/// The menu buttons 1 to 5 of a window.
std::array<model::Button*, 5> MenuButtons(model::Form1& form1);
std::array<model::Button*, 5> MenuButtons(model::Slidescreen& screen);

/// Yes, No and the menu buttons of both windows vanish.
void HideButtons(Application& app);

/// A control's place in units of the canvas under it.
platform::Rect PlaceOf(const model::VisibleControl& control);

}  // namespace macro

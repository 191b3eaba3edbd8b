// Words that change what the menus of the main window set; the menus' checks follow.
#pragma once

#include "macro/run.h"

namespace macro {

Flow SetBorderless(Run& run, double value);
/// BACKCOLOR="rrggbb": a text of another length counts as black.
Flow SetBackColor(Run& run, double);
Flow SetPictureScale(Run& run, double percent);
Flow SetInterval(Run& run, double seconds);
/// POSITION=x.y in percent. Kept: what follows the point is a whole number, so 10.5 means 5
/// percent from the top. Without a point as PICRND.
Flow SetPosition(Run& run, double);
Flow SetPictureRandom(Run& run, double mode);
Flow SetOverlaySize(Run& run, double size);
/// Kept: a mode that no menu offers is stored all the same, and the menu stays as it is.
Flow SetOverlayMode(Run& run, double mode);
/// 0 none, n effect n - 1.
Flow SetShowEffect(Run& run, double effect);
Flow SetEraseEffect(Run& run, double effect);
Flow SetShowSpeed(Run& run, double speed);
Flow SetEraseSpeed(Run& run, double speed);
/// 1 fixes both speeds at -30 and hides their menus, 0 shows them.
Flow SetEffectSpeedFixed(Run& run, double mode);
/// 0 none, 1 to the screen, 2 to its width.
Flow SetSizeAdjust(Run& run, double mode);

}  // namespace macro

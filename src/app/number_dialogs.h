// Input boxes of the menus that ask for a number. An empty entry or a cancel leaves everything as
// it was; a box refuses what is out of range. All but the slide interval then ask again. Digits,
// sign and point may be full-width ones, as a Japanese keyboard gives them.
#pragma once

#include "model/application.h"

namespace app {

/// Seconds between slides, 1 to 60: SlideIntervalSec gets the nearest whole number (halves to
/// even), Timer1 the interval as it was entered.
void AskSlideInterval(Application& app);

/// What the chosen show (erase) effect works with: the number of slits for the slit effects, that
/// of blocks for the mosaic, both where the effect is chosen at random or in turn.
void AskShowEffectCounts(Application& app);
void AskEraseEffectCounts(Application& app);

/// Speeds of the effects, -999 (slow) to 10 (fast).
void AskShowEffectSpeed(Application& app);
void AskEraseEffectSpeed(Application& app);

/// EffectSpeedTrim, 1 to 10. Kept: each slide step overwrites it, so the entry steers nothing.
void AskEffectSpeedTrim(Application& app);

/// The track that CD playing begins with, 1 to the number of tracks on the disc. A disc of fewer
/// than two tracks counts as none.
void AskCdTrack(Application& app);

}  // namespace app

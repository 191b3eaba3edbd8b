// Which effect is run, and where the picture goes.
#pragma once

#include "model/application.h"

namespace picture {

constexpr int kRandomEffect = 9;
constexpr int kSequentialEffect = 10;

/// Sets PictureX and PictureY (pixels, also negative) for the picture of Form4 on the monitor in
/// use: by the place that a macro gave (PicturePositionFixed), in the middle, or at random (two
/// numbers, x first). From here on it counts as the one on the screen (PlacedWidthPx,
/// PlacedHeightPx, PreviousPictureOnScreen).
void PlacePicture(Application& app);

/// Effect of the picture that comes, into CurrentShowEffect: ShowEffect with random and sequential
/// (NextShowEffect) resolved. More than 8: none.
void ChooseShowEffect(Application& app);

/// Effect that takes the picture away, into CurrentEraseEffect, likewise; or, by EraseEffect 11,
/// that of CurrentShowEffect with the centre and the outside exchanged.
void ChooseEraseEffect(Application& app);

}  // namespace picture

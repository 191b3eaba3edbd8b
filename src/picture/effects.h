// Effects bring pictures onto the full-screen canvas and take them away.
#pragma once

#include "model/application.h"

namespace picture {

/// Places the picture (PictureX, PictureY) and brings it onto P2. The nine geometries are not
/// built yet: whatever ShowEffect says, the picture comes whole at once.
void RunShowEffect(Application& app);

/// Takes the picture off P2. Not built yet: does nothing.
void RunEraseEffect(Application& app);

/// Gives up the bitmap the effects copy from. Safe when there is none.
void ReleaseEffectContext(Application& app);

/// Makes the picture of Form4 the bitmap that effects copy from.
void CreateEffectContext(Application& app);

}  // namespace picture

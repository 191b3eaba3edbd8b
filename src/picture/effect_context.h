// The bitmap that effects copy from.
#pragma once

#include "model/application.h"

namespace picture {

/// Gives up the bitmap the effects copy from. Safe when there is none.
void ReleaseEffectContext(Application& app);

/// Makes the picture of Form4 the bitmap that effects copy from.
void CreateEffectContext(Application& app);

}  // namespace picture

// Form24: plays a video slide.
#pragma once

#include "model/application.h"

namespace picture {

/// Plays the file as a modal window and returns when it ends; sets VideoStoppedByUser.
/// Not built yet: returns at once.
void PlayVideo(Application& app, TextView path);

}  // namespace picture

// Which pictures are decoded ahead. Everything here only asks: no setting, list, random number or
// trace changes, and a show runs the same without it.
#pragma once

#include "model/application.h"

namespace playback {

/// Asks for the picture that follows slide `shown` in the list's order, and while the show is
/// paused also for the one before it. Videos, and slides outside their schedule, are passed over.
/// Nothing is wanted in random order and after the show's end.
void PrepareAround(Application& app, int shown);

/// Asks for the first picture of a show that is not started yet, for the full screen or for what
/// START goes to. Nothing is wanted in random order and before a run over a link list.
void PrepareStart(Application& app, bool fullScreen);

/// Nothing is wanted any more; the memory comes back.
void ForgetPrepared(Application& app);

}  // namespace playback

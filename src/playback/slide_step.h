// The one routine that shows one entry of the slide list, whatever caused it.
#pragma once

#include "model/application.h"

namespace playback {

/// Works on SlideIndex (and draws it in random order), does not advance it. Timer1 must be off.
/// May take minutes and pumps events meanwhile. Results stand in StopRequest, ShowAbort,
/// ScheduleSkipped, ShowRunning and the interval of Timer1.
void RunSlideStep(Application& app);

}  // namespace playback

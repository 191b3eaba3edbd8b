// The one routine that shows one entry of the slide list, whatever caused it.
#pragma once

#include "model/application.h"

namespace playback {

/// Works on SlideIndex (and draws it in random order), does not advance it. Timer1 must be off.
/// May take minutes and pumps events meanwhile. Results stand in StopRequest, ShowAbort,
/// ScheduleSkipped, ShowRunning and the interval of Timer1. False where the show ended in the step:
/// what runs now, if anything, is another one, which the caller leaves alone.
bool RunSlideStep(Application& app);

/// Copies P2 to P4, the canvas without text, before macros draw on it. Only in full screen with
/// text macros on. While Slidescreen.Timer1 scrolls a text its label is hidden for the copy, with
/// one pump.
void CopyCanvasForMacros(Application& app);

}  // namespace playback

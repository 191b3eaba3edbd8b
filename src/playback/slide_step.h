// The one routine that shows one entry of the slide list, whatever caused it.
#pragma once

#include "model/application.h"

namespace playback {

/// What became of a step.
enum class Outcome {
    Done,     // the slide stands, its film is over, or there was nothing to show
    Skipped,  // outside its schedule; nothing was touched but Timer1's interval and ScheduleSkipped
    Paused,   // PAUSE came in while the step waited
    Stopped,  // StopRequest is 1
    Aborted,  // ShowAbort is 1: a picture, a film or a macro ended the show
    Over,     // the show ended within the step: what runs now, if anything, is another one
};

/// Works on SlideIndex (and draws it in random order), does not advance it. Timer1 must be off.
/// May take minutes and pumps events meanwhile. Leaves the interval of Timer1 short where the next
/// slide shall follow at once, and StepBusy at 1 after a film.
Outcome RunSlideStep(Application& app);

/// Copies P2 to P4, the canvas without text, before macros draw on it. Only in full screen with
/// text macros on. While Slidescreen.Timer1 scrolls a text its label is hidden for the copy, with
/// one pump.
void CopyCanvasForMacros(Application& app);

}  // namespace playback

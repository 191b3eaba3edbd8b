// One slide step and what follows from it: whether the show goes on, stands still or ends. The
// window, the full screen, the control box and the run over a link list all come here.
#pragma once

#include <functional>

#include "model/application.h"
#include "playback/slide_step.h"

namespace playback {

/// What sets a step going.
enum class Cause {
    Start,       // START of the main window
    Tick,        // Timer1
    FullScreen,  // the full screen came up with nothing running
    Box,         // START of the control box
    Document,    // the next document of a link list
    Hand,        // previous and next, while the show stands still
};

/// Runs the step for the slide at SlideIndex, goes on from its outcome, and returns that. The show
/// runs from here on (but by hand); where it goes on SlideIndex has moved and Timer1 runs. After
/// Over nothing has been touched: what runs then, if anything, is another show.
Outcome StepAndGoOn(Application& app, Cause cause);

/// Steps by hand until a slide is not passed over by its schedule. `next` moves to a slide, or
/// tells that there is none. Skipped where none was shown; nothing happens in a running show.
Outcome StepByHand(Application& app, const std::function<bool()>& next);

/// A START with no slide to show: the show runs, and its next tick begins at slide 1, or else goes
/// over the end of the list.
void StartByTick(Application& app, bool fromFirst);

/// The open document has no slide: the show runs, and is over at the next tick after 1 ms.
void PassEmptyDocument(Application& app);

/// The list is at its end and nothing follows: sound stops and the run ends. The full screen stays.
void EndAtListEnd(Application& app);

/// Goes over the end of the list, if the show is there: to slide 1, where it repeats, to the next
/// document of a link list, or to its end. True where this tick shows nothing more.
bool PassListEnd(Application& app);

/// Closes the full screen as the box's own button does.
void CloseShow(Application& app);

}  // namespace playback

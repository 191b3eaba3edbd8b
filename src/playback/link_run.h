// From show to show: the run over a link list.
#pragma once

#include "model/application.h"

namespace playback {

/// Begins a run with the first document that can be opened. False when there is none, or when one
/// was refused: the full screen is unloaded then.
bool LoadFirstDocument(Application& app);

/// The document on hand has no slide: the show runs, and is over at the next tick after 1 ms.
void PassEmptyDocument(Application& app);

/// At the end of a document's slides: goes on with the next one. False when there is none: the list
/// is at its end, or a whole round over it brought no slide.
bool ContinueLinkRun(Application& app);

/// A step by hand over the border of a document, back (-1) or on (1): reads the nearest one that
/// has slides and sets SlideIndex to its last or first. False when nothing can be shown there: no
/// document opened, and everything is as it was; or the farthest one is empty, SlideIndex 0; or one
/// was refused, and the full screen is unloaded.
bool TurnToDocument(Application& app, int by);

}  // namespace playback

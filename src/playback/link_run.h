// From show to show: reading the documents of a link list.
#pragma once

#include "model/application.h"

namespace playback {

/// What became of the next document.
enum class Loading {
    Loaded,   // SlideIndex 0, nothing runs
    Empty,    // the same, and it has no slides
    Nothing,  // there is none: the list is at its end, or a whole round brought no slide
    Refused,  // told, and the full screen is unloaded
};

/// LinkList and LinkEnd from the rows of Form9's List1.
void TakeLinkRows(Application& app);

/// Begins a run with the first document that can be opened, from the entry LinkStart on, which is
/// forgotten. False when there is none, or when one
/// was refused: the full screen is unloaded then.
bool LoadFirstDocument(Application& app);

/// Goes on to the next document that can be opened, round the list where it repeats.
Loading LoadNextDocument(Application& app);

/// A step by hand over the border of a document, back (-1) or on (1): reads the nearest one that
/// has slides and sets SlideIndex to its last or first. False when nothing can be shown there: no
/// document opened, and everything is as it was; or the farthest one is empty, SlideIndex 0; or one
/// was refused, and the full screen is unloaded.
bool TurnToDocument(Application& app, int by);

}  // namespace playback

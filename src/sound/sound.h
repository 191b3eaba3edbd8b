// The ways to audio. All are safe when nothing is open.
#pragma once

#include "model/application.h"

namespace sound {

/// Starts the piece of the sound mode in force. Not built yet: does nothing.
void StartSound(Application& app);
/// Stops everything but the CD; without a current slide the caption goes back to the document.
/// Built so far: the caption.
void StopSound(Application& app);
/// Caption of the main window: the document's, or the program's without a document.
void RestoreCaption(Application& app);
/// Starts, stops the audio CD in mode 2. Not built yet: do nothing.
void StartCd(Application& app);
void StopCd(Application& app);

}  // namespace sound

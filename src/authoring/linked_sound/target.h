// Where the sound that is linked to a slide lies.
#pragma once

#include "model/application.h"

namespace authoring {

/// Sets LinkedSoundTarget to the slide's linked WAV.
void TakeLinkedSoundTarget(Application& app, TextView slide);

/// LinkedSoundTarget with another extension of three letters. A target without a name (its slide
/// is missing) stays as it is: nothing can be written there.
Text LinkedSoundTargetAs(const Application& app, TextView extension);

/// Sets LinkedSoundTarget, and with flag 1 makes an empty wave file there, for a recorder that
/// records into a file that is there; one that is there stays. False after a box that says that it
/// cannot be written.
bool MakeLinkedWavFile(Application& app, TextView slide, int16_t flag);

}  // namespace authoring

// form2, form8 and form17: which WAV, MIDI or MP3 file plays in the background.
#pragma once

#include "model/application.h"

namespace authoring {

/// Attaches the handlers of the three. Their ＯＫ sets WavFile, MidiFile or Mp3File; the boxes of
/// form8 and form17 set MidiLinkedWavFlag and Mp3LinkedWavFlag at once.
void AttachBackgroundSound(model::Application& app);

}  // namespace authoring

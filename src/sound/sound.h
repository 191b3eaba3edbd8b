// The ways to audio. All are safe when nothing is open: what a command answers to an error is never
// looked at.
#pragma once

#include "model/application.h"

namespace sound {

constexpr int kFullVolume = 1000;

/// Path of the sound that is common to all pictures.
Text CommonSound(const model::ShowState& state);

/// Starts the piece of the sound mode in force: a pending preview (SoundPreviewFlag, which it
/// uses up), what the slide step put into LinkedWavPath or LinkedMediaPath (which it empties), a
/// background file, or the next entry of the sound list. Nothing happens without a file. A file
/// that cannot be read is reported in the background modes, and SoundPlaying becomes 0.
void StartSound(Application& app);

/// Stops everything but the CD, and unloads the video window. Without a current slide the caption
/// goes back to the document and the scrolling text goes.
void StopSound(Application& app);

/// Changes SoundMode (0 to 9) as a macro does, with the menus that show it, and starts the CD or
/// background piece of the new mode. Nothing happens for the mode in force and beyond the range.
void SetSoundMode(Application& app, int mode);

}  // namespace sound

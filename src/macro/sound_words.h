// Words for video and sound.
#pragma once

#include "macro/run.h"

namespace macro {

/// MOVIE("file",n): 0 shows the video and goes on, 1 waits until its window closes, 2 repeats it;
/// an empty name closes the window.
Flow ShowMovie(Run& run, double);
/// PLAYWAV("file",n): 0 plays and goes on, 1 waits, 2 repeats.
Flow PlayWave(Run& run, double);
Flow StopWave(Run& run, double);
/// Mp3VolumeOffset, 0..1000 below full volume; goes out to the sound of the mode in force.
Flow SetVolume(Run& run, double percent);
Flow LowerVolume(Run& run, double);
Flow RaiseVolume(Run& run, double);
/// Lowers the volume to nothing in about that many seconds, 0 at once; then stops all sound, and
/// the next slide starts it afresh.
Flow FadeOut(Run& run, double seconds);
Flow SwitchSoundMode(Run& run, double mode);
/// 0 the next slide does not wait for linked sounds, 1 it does.
Flow SetSoundSync(Run& run, double mode);

}  // namespace macro

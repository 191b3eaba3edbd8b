// Words that reach out of the text: video, sound, filters, the screen, programs, and the settings
// that the menus of the main window hold.
#pragma once

#include "macro/run.h"

namespace macro {

Flow ShowMovie(Run& run, double);
Flow SetBorderless(Run& run, double value);
Flow SetBackColor(Run& run, double);
Flow SetPictureScale(Run& run, double percent);
Flow SetVolume(Run& run, double percent);
Flow LowerVolume(Run& run, double);
Flow RaiseVolume(Run& run, double);
Flow SetInterval(Run& run, double seconds);
Flow SetPosition(Run& run, double);
Flow SetOverlaySize(Run& run, double size);
Flow FadeOut(Run& run, double seconds);
Flow SetCursor(Run& run, double mode);
Flow SwitchSoundMode(Run& run, double mode);
Flow StopWave(Run& run, double);
Flow SetEffectSpeedFixed(Run& run, double mode);
Flow SetShowSpeed(Run& run, double speed);
Flow SetEraseSpeed(Run& run, double speed);
Flow SetShowEffect(Run& run, double effect);
Flow SetEraseEffect(Run& run, double effect);
Flow SavePicture(Run& run, double);
Flow SetControlBox(Run& run, double mode);
Flow SetPictureRandom(Run& run, double mode);
Flow SetSoundSync(Run& run, double mode);
Flow PlayWave(Run& run, double);
Flow FilterBit(Run& run, double);
Flow FilterReverse(Run& run, double);
Flow FilterFlip(Run& run, double);
Flow FilterPencil(Run& run, double);
Flow FilterMetal(Run& run, double);
Flow FilterMosaic(Run& run, double);
Flow FilterGrayScale(Run& run, double);
Flow StartProgram(Run& run, double);
Flow ClearScreen(Run& run, double);
Flow SetOverlayMode(Run& run, double mode);
Flow SetWindowState(Run& run, double mode);
Flow SetSizeAdjust(Run& run, double mode);

}  // namespace macro

#include "macro/media_words.h"

namespace macro {

Flow ShowMovie(Run&, double) {
    return Flow::GoOn;
}

Flow SetBorderless(Run&, double) {
    return Flow::GoOn;
}

Flow SetBackColor(Run&, double) {
    return Flow::GoOn;
}

Flow SetPictureScale(Run&, double) {
    return Flow::GoOn;
}

Flow SetVolume(Run&, double) {
    return Flow::GoOn;
}

Flow LowerVolume(Run&, double) {
    return Flow::GoOn;
}

Flow RaiseVolume(Run&, double) {
    return Flow::GoOn;
}

Flow SetInterval(Run&, double) {
    return Flow::GoOn;
}

Flow SetPosition(Run&, double) {
    return Flow::GoOn;
}

Flow SetOverlaySize(Run&, double) {
    return Flow::GoOn;
}

Flow FadeOut(Run&, double) {
    return Flow::GoOn;
}

Flow SetCursor(Run&, double) {
    return Flow::GoOn;
}

Flow SwitchSoundMode(Run&, double) {
    return Flow::GoOn;
}

Flow StopWave(Run&, double) {
    return Flow::GoOn;
}

Flow SetEffectSpeedFixed(Run&, double) {
    return Flow::GoOn;
}

Flow SetShowSpeed(Run&, double) {
    return Flow::GoOn;
}

Flow SetEraseSpeed(Run&, double) {
    return Flow::GoOn;
}

Flow SetShowEffect(Run&, double) {
    return Flow::GoOn;
}

Flow SetEraseEffect(Run&, double) {
    return Flow::GoOn;
}

Flow SavePicture(Run&, double) {
    return Flow::GoOn;
}

Flow SetControlBox(Run&, double) {
    return Flow::GoOn;
}

Flow SetPictureRandom(Run&, double) {
    return Flow::GoOn;
}

Flow SetSoundSync(Run&, double) {
    return Flow::GoOn;
}

Flow PlayWave(Run&, double) {
    return Flow::GoOn;
}

Flow FilterBit(Run&, double) {
    return Flow::GoOn;
}

Flow FilterReverse(Run&, double) {
    return Flow::GoOn;
}

Flow FilterFlip(Run&, double) {
    return Flow::GoOn;
}

Flow FilterPencil(Run&, double) {
    return Flow::GoOn;
}

Flow FilterMetal(Run&, double) {
    return Flow::GoOn;
}

Flow FilterMosaic(Run&, double) {
    return Flow::GoOn;
}

Flow FilterGrayScale(Run&, double) {
    return Flow::GoOn;
}

Flow StartProgram(Run&, double) {
    return Flow::GoOn;
}

Flow ClearScreen(Run&, double) {
    return Flow::GoOn;
}

Flow SetOverlayMode(Run&, double) {
    return Flow::GoOn;
}

Flow SetWindowState(Run&, double) {
    return Flow::GoOn;
}

Flow SetSizeAdjust(Run&, double) {
    return Flow::GoOn;
}

}  // namespace macro

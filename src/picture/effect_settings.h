#pragma once

namespace picture {

/// What an effect's course depends on, of showing or of erasing.
struct EffectSettings {
    int speed = -30;          // -999 slow to 10 fast
    bool fixedSpeed = false;  // pauses of whole milliseconds instead of those by speed
    double speedFactor = 2;   // lengthens the pauses by speed
    int slits = 10;           // 2 to 100
    int blocks = 10;          // of the mosaic along each side, 5 to 100
    int mosaicDelay = 0;      // shortens the pauses of the mosaic
};

}  // namespace picture

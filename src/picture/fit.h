// The rule that decides how large a picture is shown. Pure arithmetic.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/imaging.h"

namespace picture {

struct FitRule {
    bool fullScreen = false;
    int16_t sizeAdjust = 0;    // 0 inside the target, 1 to its width, 2 none
    int16_t overlayMode = 0;   // full screen only
    int16_t overlaySize = 0;   // full screen only: 0..4 100 % to 20 %, 5 random, 6 no limit
    double pictureScale = 0;   // full screen only: above 0 replaces overlaySize
    double randomFactor = 0;   // for overlaySize 5: the number drawn, 0 <= r < 1
    platform::Size areaTwips;  // the monitor in full screen, else the preview
};

/// Size in pixels to which a picture of `own` pixels is scaled; nullopt when it stays as it is.
/// Sizes are rounded to 16 bits with ties to even, at least 1; one that does not fit into 16 bits
/// leaves the picture as it is.
std::optional<platform::Size> FittedSize(const FitRule& rule, platform::Size own);

}  // namespace picture

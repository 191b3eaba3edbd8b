// One pixel with its alpha laid over white.
#pragma once

#include <cstdint>

namespace decoder {

/// All 0 to 255. 0xFFRRGGBB.
inline uint32_t OverWhite(uint32_t red, uint32_t green, uint32_t blue, uint32_t alpha) {
    const auto mixed = [alpha](uint32_t value) {
        return (value * alpha + 255 * (255 - alpha) + 127) / 255;
    };
    return 0xFF000000u | mixed(red) << 16 | mixed(green) << 8 | mixed(blue);
}

}  // namespace decoder

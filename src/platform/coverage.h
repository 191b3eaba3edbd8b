// A shape as the share of each pixel that it covers, and laying colour through it.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/canvas.h"

namespace platform {

/// Row-major, without padding; 0 leaves a pixel alone, 255 covers it.
struct Coverage {
    int x = 0, y = 0;  // pixel of the canvas under the top left value
    int width = 0, height = 0;
    std::vector<uint8_t> values;
};

/// Mixes the colour into the canvas through the shape, moved by each offset in turn. Pixels equal
/// those of as many calls with one offset each. Marks what was drawn.
void Stamp(Canvas& canvas, const Coverage& shape, Color color, std::span<const Offset> offsets);

}  // namespace platform

// Pictures of the first desktop with a mouse that are one bitmap.
#pragma once

#include "adapters/decoder/decode.h"

namespace decoder {

/// `file` without the empty head. Reads what GraphicsMagick shows black: a picture of version 1
/// that holds a bitmap of one bit, packed or not, and before it nothing but what changes no pixel.
/// Nothing for everything else.
std::optional<Picture> DecodePctBitmap(std::span<const uint8_t> file);

/// Bits per pixel (1, 4, 8) where the first thing that the contents of version 2 draw is a bitmap
/// with a palette; else 0.
int PctPaletteDepth(std::span<const uint8_t> file);

}  // namespace decoder

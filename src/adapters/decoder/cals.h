// Scanned drawings of one bit a pixel, stored like a fax after a header of text.
#pragma once

#include "adapters/decoder/decode.h"

namespace decoder {

/// Raster type 1, in all eight directions that its lines can run in.
std::optional<Picture> DecodeCals(std::span<const uint8_t> file);

}  // namespace decoder

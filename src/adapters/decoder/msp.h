// Two-level pictures of the paint program of the first windows.
#pragma once

#include "adapters/decoder/decode.h"

namespace decoder {

/// Both versions: plain rows ("DanM"), and rows of runs after a table of their lengths ("LinS").
std::optional<Picture> DecodeMsp(std::span<const uint8_t> file);

}  // namespace decoder

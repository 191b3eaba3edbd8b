// What the boxes of heic and avif say of the depth that their pictures are stored in.
#pragma once

#include <cstdint>
#include <span>

namespace decoder {

/// Bits of a colour part, and whether there is grey only. `bits` 0: the file does not say.
struct BoxedDepth {
    int bits = 0;
    bool grey = true;
};

/// The largest of all that the file holds: a picture's transparency is a grey one of its own.
BoxedDepth BoxedDepthOf(std::span<const uint8_t> file);

}  // namespace decoder

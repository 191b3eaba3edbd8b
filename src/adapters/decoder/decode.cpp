#include "adapters/decoder/decode.h"

namespace decoder {

void WarmUp() {}

std::optional<Picture> Decode(door::Kind, std::span<const uint8_t>, platform::Size) {
    return std::nullopt;
}

}  // namespace decoder

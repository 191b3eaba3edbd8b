// Kinds that libavcodec decodes.
#pragma once

#include "adapters/decoder/decode.h"

namespace decoder {

/// Silences the library and has it build its tables.
void WarmUpFfmpeg();

std::optional<Picture> DecodePsd(std::span<const uint8_t> file);
std::optional<Picture> DecodeTga(std::span<const uint8_t> file);
std::optional<Picture> DecodeBmp(std::span<const uint8_t> file);
std::optional<Picture> DecodeRas(std::span<const uint8_t> file);
std::optional<Picture> DecodeImg(std::span<const uint8_t> file);

}  // namespace decoder

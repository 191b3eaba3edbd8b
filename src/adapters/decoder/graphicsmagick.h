// Kinds that GraphicsMagick decodes.
#pragma once

#include "adapters/decoder/decode.h"

namespace decoder {

/// Sets the library's limits (memory only, one thread) and has it load its tables.
void WarmUpMagick();

/// `format` is the library's name for the kind; the content has no say in the choice.
std::optional<Picture> DecodeByMagick(const char* format, std::span<const uint8_t> file);

/// The same after what the library does not read of this kind is put right.
std::optional<Picture> DecodePct(std::span<const uint8_t> file);

}  // namespace decoder

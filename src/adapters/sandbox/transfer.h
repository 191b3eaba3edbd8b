// The contents of the descriptors that travel: a picture file to the decoder, pixels back.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "adapters/sandbox/message.h"
#include "platform/canvas.h"

namespace sandbox {

/// Largest picture file that is read.
constexpr int64_t kMostFileBytes = int64_t{512} << 20;

/// All bytes of a plain file that is not empty. Nothing for anything else, for one above
/// kMostFileBytes, or one that shrinks meanwhile. May throw std::bad_alloc.
std::optional<std::vector<uint8_t>> ReadFile(int file);

/// Nameless memory that holds this, to be read from its start. Not valid where that cannot be had.
Descriptor MakeMemory(const char* name, std::span<const uint8_t> content);

/// Pixels 0xFFRRGGBB in nameless memory that can travel. Not valid where that cannot be had.
Descriptor MakePixels(std::span<const uint32_t> pixels);

/// The pixels that came, made opaque. Null where the descriptor is not nameless memory of exactly
/// this size. It is read and never mapped: whoever sent it may shrink it at any time. `size` must
/// fit the bound. May throw std::bad_alloc.
platform::BitmapPtr ReadPixels(int memory, platform::Size size);

}  // namespace sandbox

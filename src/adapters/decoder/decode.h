// Decodes one picture that the toolkit does not read. Runs in the decoder's own process.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "adapters/sandbox/kind.h"
#include "adapters/sandbox/picture.h"

namespace decoder {

using sandbox::Picture;

/// Pixels of the largest picture that is decoded: two of its copies fit the process's memory.
constexpr int64_t kMostPixels = int64_t{1} << 27;

/// Loads what the libraries load at first use, so that nothing has to be opened afterwards but by
/// the interpreter of drawings, which is a program of its own.
void WarmUp();

/// The whole picture, turned upright. `wanted` matters for drawings (Eps) only: the size to draw
/// at, empty for the drawing's own (72 dots an inch). Nothing for a damaged file, or one above the
/// limits; never throws. May crash, hang or use up the memory on a hostile file: the caller's
/// process has limits.
std::optional<Picture> Decode(sandbox::Kind kind, std::span<const uint8_t> file,
                              platform::Size wanted);

}  // namespace decoder

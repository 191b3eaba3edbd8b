// Draws SVG by the toolkit. Runs in a process of its own: the toolkit's reader has no bound on
// time, and opens what a drawing names.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "adapters/sandbox/kind.h"
#include "adapters/sandbox/picture.h"

namespace svg {

/// Finds the fonts, and loads what reads drawings. Needs a QGuiApplication.
void WarmUp();

/// The drawing's own size, however large. Nothing for what is no drawing.
std::optional<platform::Size> Measure(sandbox::Kind kind, std::span<const uint8_t> file);

/// The drawing at `wanted`, or at its own size if that is empty, over white. Nothing for a damaged
/// one. May hang on a hostile file, crash, or use up the memory: the process has limits.
std::optional<sandbox::Picture> Draw(sandbox::Kind kind, std::span<const uint8_t> file,
                                     platform::Size wanted);

}  // namespace svg

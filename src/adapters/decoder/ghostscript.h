// Drawings in PostScript, drawn by Ghostscript in a process of its own.
#pragma once

#include <chrono>
#include <string_view>

#include "adapters/decoder/decode.h"

namespace decoder {

/// The part of the page that a drawing covers, in points (72 an inch).
struct Box {
    double left = 0, bottom = 0, right = 0, top = 0;
};

/// From the comments, the fine one first; nothing where none is legible or the box is empty or out
/// of all proportion.
std::optional<Box> BoundingBox(std::string_view postScript);

/// Opens what later calls need.
void WarmUpGhostscript();

/// A drawing's own size, a pixel a point. Nothing without a legible box.
std::optional<platform::Size> MeasurePostScript(std::span<const uint8_t> file);

/// Whether the interpreter of the last drawing still runs.
bool InterpreterLives();

/// Draws the first page's box at `wanted` pixels, or a pixel a point. Fails without a legible box,
/// and where the interpreter takes more than `timeLimit`. An interpreter that goes on after its
/// page and cannot be ended alone is left to the caller, who may call again only when it is gone.
constexpr std::chrono::seconds kDrawingTime{8};
std::optional<Picture> DrawPostScript(std::span<const uint8_t> file, platform::Size wanted,
                                      std::chrono::milliseconds timeLimit = kDrawingTime);

}  // namespace decoder

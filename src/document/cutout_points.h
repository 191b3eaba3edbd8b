// Coordinate files: the outline of a cut-out object.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "text/text.h"

namespace document {

constexpr TextView kCutoutHeader = u"KVS_PICTYPE_DATA";
/// Points that are taken; later ones are ignored.
constexpr size_t kCutoutPointsMost = 5000;

/// Pixels from the object's top left.
struct CutoutPoint {
    int32_t x = 0;
    int32_t y = 0;
};

/// First field of a file, without the blanks around it.
Text CutoutHeaderOf(TextView content);

/// The points of a file's text, in order: fields parted by commas and line ends, a header and then
/// pairs. A blank first field of a pair is skipped; a pair without its end is dropped; what is no
/// number, or none of 32 bits, counts 0. Nullopt for another header.
std::optional<std::vector<CutoutPoint>> ReadCutoutPoints(TextView content);

}  // namespace document

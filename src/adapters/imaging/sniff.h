// What kind of picture a file is, by its first bytes.
#pragma once

#include <string_view>

namespace imaging {

enum class Kind { None, Png, Jpeg, Bmp, Tiff, Gif, WebP, Svg };

/// Bytes that SniffKind wants to see of a file, fewer where it is shorter.
constexpr size_t kSniffBytes = 4096;

/// The file's name plays no part.
Kind SniffKind(std::string_view start);

/// Name of the kind's reader: "png", "jpeg", ... Empty for None.
const char* ReaderName(Kind kind);

}  // namespace imaging

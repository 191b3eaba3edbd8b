// How large the pictures of a film are, by what stands in its file.
#pragma once

#include <istream>

#include "platform/imaging.h"

namespace virtual_adapter {

/// Upright and with square pixels: MP4 and MOV by the header of their first track of pictures, AVI
/// by its main header, WMV by its first stream of pictures. Empty for everything else and for what
/// is broken. The stream must be able to seek. Never throws, never reads a file for long.
platform::Size SizeOfFilm(std::istream& file);

}  // namespace virtual_adapter

// Filters: a new bitmap of the same size. They throw bad_alloc where memory does not do.
#pragma once

#include "platform/canvas.h"

namespace imaging {

/// Greys of the same brightness.
platform::BitmapPtr Gray(const platform::Bitmap& source);

/// Left and right exchanged.
platform::BitmapPtr Mirrored(const platform::Bitmap& source);

/// Squares of `block` pixels (at least 1) from the top left on, each of the mean colour of what it
/// covers; the last ones are cut at the right and bottom edge.
platform::BitmapPtr Mosaic(const platform::Bitmap& source, int block);

}  // namespace imaging

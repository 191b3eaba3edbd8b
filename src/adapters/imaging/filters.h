// Filters: a new bitmap of the same size. They throw bad_alloc where memory is short.
#pragma once

#include "platform/canvas.h"

namespace imaging {

/// Greys of the same brightness.
platform::BitmapPtr Gray(const platform::Bitmap& source);

/// Left and right exchanged.
platform::BitmapPtr Mirrored(const platform::Bitmap& source);

/// Squares of `block` units (at least 1) from the top left on, each of the mean colour of what it
/// covers; the last ones are cut at the right and bottom edge.
platform::BitmapPtr Mosaic(const platform::Bitmap& source, int block, const platform::Scale& scale);

/// Top and bottom exchanged.
platform::BitmapPtr Flipped(const platform::Bitmap& source);

/// Each colour part as its complement.
platform::BitmapPtr Inverted(const platform::Bitmap& source);

/// Edges bright on black, each colour part by itself: the sums of both Sobel differences, times
/// level / 8, between pixels that lie `reach` from the one in work. Those beyond the edge count as
/// those on it.
platform::BitmapPtr Edges(const platform::Bitmap& source, int level, int reach = 1);

/// A relief in grey light: 128 and, per mille of `depth`, the difference of the two neighbours that
/// lie along the light, `reach` away. Direction 0 to 7: the light comes from the top left, top, top
/// right, right and on around.
platform::BitmapPtr Embossed(const platform::Bitmap& source, int direction, int depth,
                             int reach = 1);

}  // namespace imaging

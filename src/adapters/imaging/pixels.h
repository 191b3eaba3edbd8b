// Work on pixels that no decoder does.
#pragma once

#include "platform/imaging.h"

class QImage;

namespace imaging {

/// Brightness of a pixel, 0 to 255.
int Brightness(platform::Pixel p);

/// Opaque pixels of a decoded image: what is transparent lies over white. Null on failure.
platform::BitmapPtr OverWhite(QImage image);

/// The bitmap's own pixels, which the image keeps alive. Null where there are none.
QImage ImageOf(const platform::BitmapPtr& bitmap);

/// Resampled to the size: area averages downwards, smooth upwards. Null on failure.
platform::BitmapPtr Smooth(const platform::Bitmap& source, platform::Size size);

/// The same by the nearest pixel, so that no new colours arise.
platform::BitmapPtr Nearest(const platform::Bitmap& source, platform::Size size);

/// Black and white by brightness, the error spread to the neighbours (Floyd–Steinberg).
platform::BitmapPtr TwoLevels(const platform::Bitmap& source);

}  // namespace imaging

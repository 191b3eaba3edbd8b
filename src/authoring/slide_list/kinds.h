// Which files can be slides.
#pragma once

#include "text/text.h"

namespace authoring {

/// File1's pattern.
extern const TextView kSlidePatterns;

/// Of the kinds that a drop takes; the browser shows more.
bool IsDroppedKind(TextView path);

}  // namespace authoring

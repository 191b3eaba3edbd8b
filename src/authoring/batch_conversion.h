// Form16: copies the pictures that are selected in the slide list to a folder, converted to another
// kind and reduced where a person wants that.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachBatchConversion(Application& app);

/// The size that the reduction brings a picture to: within 1280 x 720, never enlarged.
platform::Size ReducedSize(platform::Size own);

/// The window comes up with everything as at first; what is selected when the copying starts
/// counts.
void OpenBatchConversion(Application& app);

}  // namespace authoring

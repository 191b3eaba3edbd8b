// Sizes of the surfaces a show is drawn on.
#pragma once

#include "model/application.h"

namespace picture {

/// Rectangle of monitor `index` in twips; of the primary one where that monitor is gone.
platform::Rect MonitorTwips(Application& app, int index);

/// Size in twips of the monitor in use (MonitorIndex).
platform::Size MonitorSizeTwips(Application& app);

/// Gives the preview its size by that of the main window: width less 600 twips, height less 1450
/// and MainBottomMargin.
void SizePreview(Application& app);

/// Gives P2, P3 and P4 the size of the Slidescreen window, at its top left.
void SizeLayers(Application& app);

}  // namespace picture

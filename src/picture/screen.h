// Sizes of the surfaces a show is drawn on.
#pragma once

#include "model/application.h"

namespace picture {

/// Reads the monitor table anew: MonitorLeft, MonitorTop, MonitorRight, MonitorBottom, their count
/// and far edges. Monitors come and go, so whoever places something reads it first.
void FillMonitorTable(Application& app);

/// Number of the main window's monitor in the table as it was last read; 0 for one that it lacks.
int MonitorOfMainWindow(Application& app);

/// Reads the table anew. Rectangle of monitor `index` in twips; of the primary one where that
/// monitor is gone or unknown to the system.
platform::Rect MonitorTwips(Application& app, int index);

/// Size in twips of the monitor in use (MonitorIndex).
platform::Size MonitorSizeTwips(Application& app);

/// Gives the preview its size by that of the main window: width less 600 twips, height less 1450
/// and MainBottomMargin.
void SizePreview(Application& app);

/// Empties P2: its picture is dropped, and no picture stands on it any more.
void ClearCanvas(Application& app);

/// Gives P2, P3 and P4 the size of the Slidescreen window, at its top left.
void SizeLayers(Application& app);

}  // namespace picture

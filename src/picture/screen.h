// Sizes of the surfaces a show is drawn on.
#pragma once

#include "model/application.h"
#include "model/picture_controls.h"

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

/// The full-screen canvas on the monitor in use: the units that every rule reckons in, and the
/// monitor's pixels. Units are pixels too, or 1080 lines high in the monitor's shape where the
/// user's settings say so, also on an upright monitor and on one with fewer lines.
platform::Scale CanvasScale(Application& app);

/// Logical width and height of that canvas.
platform::Size CanvasSize(Application& app);

/// Where the placed picture stands on the full-screen canvas, in the canvas's pixels.
platform::Rect PicturePlace(Application& app);

/// Copies to the full-screen layer what of the slide's picture stands in `area` (units). Nothing
/// without an effect context.
void CopyPicture(Application& app, model::PictureBox& layer, const platform::Rect& area);

/// Puts the window in the middle of the monitor in use, that of the main window; one that is larger
/// than the monitor takes its size.
void CentreOnMonitor(Application& app, model::Window& window);

/// Gives the preview its size by that of the main window: width less 600 twips, height less 1450
/// and MainBottomMargin.
void SizePreview(Application& app);

/// Empties P2: its picture is dropped, and no picture stands on it any more.
void ClearCanvas(Application& app);

/// Makes P2, P3 and P4 canvases that cover the Slidescreen window, each as CanvasScale has it.
void SizeLayers(Application& app);

}  // namespace picture

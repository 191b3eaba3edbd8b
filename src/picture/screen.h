// Sizes of the surfaces a show is drawn on.
#pragma once

#include "model/application.h"
#include "model/picture_controls.h"

namespace picture {

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

/// Gives the preview its size by that of the main window: width less 600 twips, height less 1450
/// and MainBottomMargin.
void SizePreview(Application& app);

/// Empties P2: its picture is dropped, and no picture stands on it any more.
void ClearCanvas(Application& app);

/// Makes P2, P3 and P4 canvases that cover the Slidescreen window, each as CanvasScale has it.
void SizeLayers(Application& app);

}  // namespace picture

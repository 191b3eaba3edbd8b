// Overlay: pictures that pile up on the full-screen canvas.
#pragma once

#include "model/application.h"

namespace picture {

/// Ground colour in force: OverlayBackText of a macro (RRGGBB), else the colour of
/// OverlayBackColor; black for an index that has none.
platform::Color OverlayBackground(const model::ShowState& state);

/// Gives P2, P3 and P4 of Slidescreen that back colour and fills them with it.
void ApplyOverlayBackground(Application& app);

/// Ground of the canvas by the overlay mode: black for none, else the overlay background.
void ResetCanvasGround(Application& app);

/// Redraws the previous picture in a muted form. Not built yet: does nothing.
void ReprocessPreviousPicture(Application& app);

/// Bevel of two pixels around the picture on P2, after each show effect. Only with an overlay mode
/// and while OverlayFrameOff is 0. Not built yet: does nothing.
void DrawOverlapFrame(Application& app);

}  // namespace picture

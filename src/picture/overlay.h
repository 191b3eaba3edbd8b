// Overlay: pictures that pile up on the full-screen canvas.
#pragma once

#include "model/application.h"

namespace picture {

/// Ground colour in force: OverlayBackText of a macro (RRGGBB), else the colour of
/// OverlayBackColor; black for an index that has none.
platform::Color OverlayBackground(const model::ShowState& state);

/// Gives P2, P3 and P4 of Slidescreen the back colour of the overlay mode, black for none, else the
/// overlay background, and fills them with it: no picture stands on the screen any more.
void ResetCanvasGround(Application& app);

/// The same for the settings of a document that was read. With an overlay the layers
/// also take the size of their window.
void FollowGround(Application& app);

/// Mutes the picture that stands on the screen before the next one is loaded, by OverlayMode:
/// 2 grey, 3 two levels, 4 one of these or mirrored, mosaic or nothing by a random number (drawn in
/// mode 4 only); other modes leave it. Happens only while a picture of this show stands on the
/// screen (PreviousPictureOnScreen and EffectDcValid). Pumps events where it redraws.
void ReprocessPreviousPicture(Application& app);

/// Shows the picture of Lead1 again after it was processed: at 24 bits in Form4.Picture1 and in
/// the preview, in full screen also in its old place (PictureX, PictureY) on P2, P3 and P4, where
/// its frame stays. What was drawn over it is gone; without overlay and with text coordinates of
/// the screen the whole of P2. In full screen it pumps events once and makes the effect context
/// anew; when the window is closed meanwhile, nothing more is drawn and there is no context.
/// Nothing happens when no picture is held.
void RedrawProcessedPicture(Application& app);

/// Bevel of two pixels around the picture on P2, after each show effect: white at the top and left,
/// black at the right and bottom. Only with an overlay mode and while OverlayFrameOff is 0.
void DrawOverlapFrame(Application& app);

}  // namespace picture

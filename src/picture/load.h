// From the file of the current slide to the fitted off-screen picture.
#pragma once

#include "model/application.h"
#include "picture/fit.h"

namespace picture {

/// Decodes SlideList(SlideIndex) into Lead1 (and its unscaled twin Lead2), erases the old picture
/// in full screen, fits the new one into Form4.Picture1 and shows it in the preview. Sets
/// CurrentName, CurrentPath, PictureWidthPx, PictureHeightPx and their twips, and the captions.
/// False for a file that cannot be read: nothing of the screen has changed then, but that an
/// overlay muted the previous picture; the caller runs HandleLoadFailure.
bool LoadSlidePicture(Application& app);

/// How large a picture loaded now would be wanted: a pure function of its own size that holds the
/// settings of this moment. For a random limit the largest that can be drawn; nothing is drawn.
platform::FitFunction FitForLoad(Application& app, bool fullScreen);

/// What follows a picture that cannot be read: the previews are emptied; unless the main window is
/// minimised or the show is aborting already, the user is asked (or ListErrorDelete answers) and
/// the entry leaves the lists, or ShowAbort becomes 1. Timer1 then ticks after 10 ms.
void HandleLoadFailure(Application& app);

/// Fits the picture that Form4 holds anew, from its unscaled twin, to the full screen or to the
/// preview, and shows it in the preview. Nothing happens without a held picture.
void RefitHeldPicture(Application& app, bool fullScreen);

/// Empties the preview.
void ClearPreview(Application& app);

}  // namespace picture

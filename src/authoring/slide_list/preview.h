// The preview of the current slide: Image1 in Frame1, with its pixels in Picture1.
#pragma once

#include <memory>

#include "model/application.h"

namespace authoring {

/// As long as it lives the preview stays in the middle of its frame, whatever size that takes.
std::shared_ptr<model::Listener> KeepPreviewPlaced(Application& app);

/// Shows the slide, a film by the picture "mp4.bmp" of the program folder. Nothing happens for the
/// path that it shows already and while Check1 is off. One that cannot be read leaves it empty.
void ShowPreview(Application& app, const Text& path);

/// Empties it; the next path is shown again, also the same one.
void ClearPreview(Application& app);

}  // namespace authoring

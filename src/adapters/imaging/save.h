// Saving pixels as a picture file.
#pragma once

#include <string>

#include "adapters/posix/watched_work.h"
#include "platform/imaging.h"

class QImage;

namespace imaging {

/// As platform::Imaging::Save; `ownThread` as RunWatched has it.
platform::Outcome SavePicture(const platform::BitmapPtr& picture, const std::string& nativePath,
                              const platform::SaveForm& form, const platform::Report& report,
                              bool ownThread, platform::FileError& error);

/// Writes a file of the kind, by the toolkit's name for it, as the last step of `watched`, whole or
/// not at all. `quality`: of a JPEG. 0, or errno: ECANCELED when it was stopped.
int WriteImage(const QImage& image, const std::string& nativePath, const char* kind, int quality,
               posix_adapter::WatchedWork& watched);

}  // namespace imaging

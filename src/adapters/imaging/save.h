// Saving pixels as a picture file.
#pragma once

#include <string>

#include "platform/imaging.h"

namespace imaging {

/// As platform::Imaging::Save; `ownThread` as RunWatched has it.
platform::Outcome SavePicture(const platform::BitmapPtr& picture, const std::string& nativePath,
                              const platform::SaveForm& form, const platform::Report& report,
                              bool ownThread, platform::FileError& error);

}  // namespace imaging

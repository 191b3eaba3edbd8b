// Saving pixels as a picture file.
#pragma once

#include <string>

#include "adapters/imaging/exif_date.h"
#include "adapters/posix/watched_work.h"
#include "platform/imaging.h"

class QImage;

namespace imaging {

/// As platform::Imaging::Save; `ownThread` as RunWatched has it.
platform::Outcome SavePicture(const platform::BitmapPtr& picture, const std::string& nativePath,
                              const platform::SaveForm& form, const platform::Report& report,
                              bool ownThread, platform::FileError& error);

/// What a picture file is to be.
struct FileForm {
    const char* kind = "";  // the toolkit's name
    int quality = 90;       // of a JPEG
    DatePiece date;         // put in as the file is written; a JPEG or PNG is, from start to end
};

/// Writes the file as the last step of `watched`, whole or not at all. 0, or errno: ECANCELED when
/// it was stopped.
int WriteImage(const QImage& image, const std::string& nativePath, const FileForm& form,
               posix_adapter::WatchedWork& watched);

}  // namespace imaging

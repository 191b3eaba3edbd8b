// One picture file made of another one.
#pragma once

#include <string>

#include "adapters/sandbox/client.h"
#include "platform/imaging.h"

namespace imaging {

struct ConvertOptions {
    const sandbox::ClientOptions& decoder;
    const platform::Report& report;
    bool ownThread;  // as RunWatched has it
};

/// As platform::Imaging::Convert. A JPEG or PNG gets the date that the photograph was taken at; a
/// JPEG or BMP file that was cut off is unreadable.
platform::Converted ConvertPicture(const std::string& from, const std::string& to,
                                   const platform::Conversion& conversion,
                                   const ConvertOptions& options, platform::FileError& error);

}  // namespace imaging

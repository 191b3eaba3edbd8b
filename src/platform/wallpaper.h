// The picture on the desktop's background.
#pragma once

#include "platform/files.h"

namespace platform {

class Wallpaper {
public:
    virtual ~Wallpaper() = default;

    /// Shows the picture file, which must stay where it is. Not lasting: until PutBack, where the
    /// desktop tells what it showed before. False with `error` set where there is no desktop that
    /// takes a wallpaper.
    virtual bool Set(TextView file, bool lasting, FileError& error) = 0;

    /// Shows again what stood there before the first wallpaper that was not lasting. A lasting
    /// one in between stays. Nothing to do is no failure.
    virtual void PutBack() = 0;
};

}  // namespace platform

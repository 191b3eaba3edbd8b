// The imaging control over Qt's picture readers.
#pragma once

#include "adapters/door/client.h"
#include "platform/files.h"
#include "platform/imaging.h"

namespace imaging {

/// PNG, JPEG, BMP, TIFF, GIF, WebP, told apart by content; SVG and what is none of these is decoded
/// behind the door, in a process of its own. Pictures above 1 GiB of
/// pixels are refused, but JPEG and SVG where the fitted size does. Everything runs on the caller's
/// thread; nothing throws. Must outlive its controls.
class QtImaging : public platform::Imaging {
public:
    /// `files` must outlive this object and its controls.
    explicit QtImaging(platform::Files& files, door::ClientOptions decoder = {});

    Text VersionText() const override;
    std::unique_ptr<platform::ImagingControl> MakeControl() override;

private:
    platform::Files& files_;
    door::Client decoder_;
};

}  // namespace imaging

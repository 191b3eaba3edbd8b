// Audio discs by libcdio: a drive, or an image described by a .cue file.
#pragma once

#include <memory>
#include <string>

#include "adapters/gstreamer/disc.h"

namespace cdio_adapter {

/// See gst_adapter::OpenDisc.
std::unique_ptr<gst_adapter::Disc> OpenDisc(const std::string& device);

}  // namespace cdio_adapter

// Monitors, in physical pixels of one desktop.
#pragma once

#include <vector>

#include "platform/canvas.h"

namespace platform {

/// Twips of one pixel, in both directions.
constexpr int kTwipsPerPixel = 15;

class Monitors {
public:
    virtual ~Monitors() = default;
    /// At least one; the primary first.
    virtual std::vector<Rect> Enumerate() = 0;
    /// Index of the monitor that the main window is on; 0 when unknown.
    virtual int OfMainWindow() = 0;
};

}  // namespace platform

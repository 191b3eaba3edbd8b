// Monitors, in physical pixels of one desktop.
#pragma once

#include <functional>
#include <vector>

#include "platform/canvas.h"
#include "platform/imaging.h"

namespace platform {

/// Twips of one pixel, in both directions.
constexpr int kTwipsPerPixel = 15;

class Monitors {
public:
    virtual ~Monitors() = default;
    /// At least one; the primary first. Empty rectangles stand for monitors that the system lists
    /// but cannot describe.
    virtual std::vector<Rect> Enumerate() = 0;
    /// Index of the monitor that the main window is on; 0 when unknown.
    virtual int OfMainWindow() = 0;
    /// Largest size of a window on the primary monitor, without the desktop's panels and the
    /// window's frame, in the units of windows: pixels before the desktop scales them.
    virtual Size Room() = 0;
    /// Asks the desktop to neither blank nor lock the monitors until asked with false. Returns at
    /// once; that a desktop cannot do it is not reported.
    virtual void KeepAwake(bool on) = 0;
    /// Given by the program: called from inside a pump after a monitor came, went or changed.
    std::function<void()> onChanged;
};

}  // namespace platform

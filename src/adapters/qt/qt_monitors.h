// The monitors, in physical pixels, and the way back to the toolkit's own coordinates.
#pragma once

#include <QPoint>
#include <functional>
#include <memory>
#include <vector>

#include "platform/monitors.h"

class QScreen;

namespace qt_adapter {

/// The screen's rectangle in physical pixels.
platform::Rect PhysicalRect(const QScreen& screen);

/// The screen that a physical point lies on, or the nearest one.
QScreen* ScreenAt(int physicalX, int physicalY);

/// The toolkit's coordinates of a physical point.
QPoint FromPhysical(int physicalX, int physicalY);

class ScreenKeeper;

class QtMonitors : public platform::Monitors {
public:
    /// `screens` are reported instead of the real ones unless empty; `mainScreen` answers the
    /// screen of the main window, or null.
    QtMonitors(std::vector<platform::Rect> screens, std::function<QScreen*()> mainScreen);
    ~QtMonitors() override;
    std::vector<platform::Rect> Enumerate() override;
    int OfMainWindow() override;
    platform::Size Room() override;
    /// Nothing happens when other monitors than the real ones are reported.
    void KeepAwake(bool on) override;

private:
    std::vector<platform::Rect> screens_;
    std::function<QScreen*()> mainScreen_;
    std::unique_ptr<ScreenKeeper> keeper_;  // made when first needed
};

}  // namespace qt_adapter

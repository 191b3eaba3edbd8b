// The monitors, in physical pixels, and the way back to the toolkit's own coordinates.
#pragma once

#include <QPoint>
#include <functional>
#include <vector>

#include "platform/monitors.h"

class QScreen;
class QWidget;

namespace qt_adapter {

/// The screen's rectangle in physical pixels.
platform::Rect PhysicalRect(const QScreen& screen);

/// The screen that a physical point lies on, or the nearest one.
QScreen* ScreenAt(int physicalX, int physicalY);

/// The toolkit's coordinates of a physical point.
QPoint FromPhysical(int physicalX, int physicalY);

class QtMonitors : public platform::Monitors {
public:
    /// `screens` are reported instead of the real ones unless empty; `mainWindow` answers the main
    /// window's widget, or null.
    QtMonitors(std::vector<platform::Rect> screens, std::function<QWidget*()> mainWindow);
    std::vector<platform::Rect> Enumerate() override;
    int OfMainWindow() override;

private:
    std::vector<platform::Rect> screens_;
    std::function<QWidget*()> mainWindow_;
};

}  // namespace qt_adapter

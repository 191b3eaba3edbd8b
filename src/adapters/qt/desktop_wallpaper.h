// The wallpaper of the desktop that runs, by its own settings program.
#pragma once

#include <QStringList>
#include <functional>
#include <vector>

#include "platform/wallpaper.h"

namespace qt_adapter {

/// Asks the settings of the desktop named in $XDG_CURRENT_DESKTOP, where it is one of the common
/// ones; the desktop portal of any other; and the root window of a bare X display. Waits for the
/// program that it starts, 5 s at most.
class DesktopWallpaper : public platform::Wallpaper {
public:
    /// Finds paths by `files`.
    explicit DesktopWallpaper(platform::Files& files) : files_(files) {}

    bool Set(TextView file, bool lasting, platform::FileError& error) override;
    void PutBack() override;

private:
    platform::Files& files_;
    std::vector<QStringList> before_;  // command lines that bring back what stood there
};

}  // namespace qt_adapter

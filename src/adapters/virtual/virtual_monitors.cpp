#include "adapters/virtual/virtual_monitors.h"

namespace virtual_adapter {

namespace {

constexpr platform::Rect kDefaultScreen{0, 0, 1920, 1080};

}  // namespace

VirtualMonitors::VirtualMonitors(const std::vector<platform::Rect>& sizes) {
    int left = 0;
    for (const platform::Rect& size : sizes) {
        monitors.push_back({left, 0, size.width, size.height});
        left += size.width;
    }
    if (monitors.empty()) {
        monitors.push_back(kDefaultScreen);
    }
}

int VirtualMonitors::OfMainWindow() {
    if (!mainWindow_) {
        return ofMainWindow;
    }
    const int x = (mainWindow_->Left + mainWindow_->Width / 2) / platform::kTwipsPerPixel;
    const int y = (mainWindow_->Top + mainWindow_->Height / 2) / platform::kTwipsPerPixel;
    for (size_t i = 0; i < monitors.size(); ++i) {
        const platform::Rect& monitor = monitors[i];
        if (x >= monitor.x && x < monitor.x + monitor.width && y >= monitor.y &&
            y < monitor.y + monitor.height) {
            return static_cast<int>(i);
        }
    }
    return 0;
}

}  // namespace virtual_adapter

// Monitors that exist by their sizes alone.
#pragma once

#include <vector>

#include "model/window.h"
#include "platform/monitors.h"

namespace virtual_adapter {

/// Monitors of the given sizes side by side from left to right, the first being the primary.
class VirtualMonitors : public platform::Monitors {
public:
    /// An empty list counts as one monitor of 1920 × 1080.
    explicit VirtualMonitors(const std::vector<platform::Rect>& sizes);

    /// The window whose centre OfMainWindow looks for; null: always the primary.
    void Follow(const model::Window* mainWindow) { mainWindow_ = mainWindow; }

    std::vector<platform::Rect> Enumerate() override { return monitors_; }
    platform::Size Room() override { return {monitors_.front().width, monitors_.front().height}; }
    int OfMainWindow() override;
    void KeepAwake(bool) override {}

private:
    std::vector<platform::Rect> monitors_;
    const model::Window* mainWindow_ = nullptr;
};

}  // namespace virtual_adapter

// Monitors that exist by their sizes alone.
#pragma once

#include <vector>

#include "model/window.h"
#include "platform/monitors.h"

namespace virtual_adapter {

class VirtualMonitors : public platform::Monitors {
public:
    /// Monitors of the given sizes side by side from left to right, the first being the primary.
    /// An empty list counts as one monitor of 1920 × 1080.
    explicit VirtualMonitors(const std::vector<platform::Rect>& sizes = {});

    std::vector<platform::Rect> monitors;
    /// Where the main window is while none is followed.
    int ofMainWindow = 0;
    /// Every KeepAwake, in order.
    std::vector<bool> awake;

    /// From now on the main window is where the centre of this one lies.
    void Follow(const model::Window* mainWindow) { mainWindow_ = mainWindow; }

    std::vector<platform::Rect> Enumerate() override { return monitors; }
    platform::Size Room() override { return {monitors.front().width, monitors.front().height}; }
    int OfMainWindow() override;
    void KeepAwake(bool on) override { awake.push_back(on); }

private:
    const model::Window* mainWindow_ = nullptr;
};

}  // namespace virtual_adapter

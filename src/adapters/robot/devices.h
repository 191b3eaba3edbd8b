// The robot's monitors and sound device.
#pragma once

#include <vector>

#include "model/window.h"
#include "platform/monitors.h"
#include "platform/sound.h"
#include "platform/trace.h"

namespace robot {

/// Monitors of the given sizes side by side from left to right, the first being the primary.
class RobotMonitors : public platform::Monitors {
public:
    /// An empty list counts as one monitor of 1920 × 1080.
    explicit RobotMonitors(const std::vector<platform::Rect>& sizes);

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

/// A device on which nothing is ever open: each command is traced (mci, sndPlaySound) and
/// answered with the empty text.
class RobotSound : public platform::Sound {
public:
    explicit RobotSound(platform::Trace& trace) : trace_(trace) {}
    Text MciSendString(TextView command) override;
    void SndPlaySound(const std::optional<Text>& file, int flags) override;

private:
    platform::Trace& trace_;
};

}  // namespace robot

// While a show runs the monitors neither blank nor lock.
#pragma once

#include <array>

#include "model/application.h"

namespace app {

/// As long as it lives the monitors are kept awake whenever a show is under way, running or paused:
/// the full screen is up, or the menus that a show turns off are off.
class KeepAwake : public model::Listener {
public:
    explicit KeepAwake(Application& application);
    ~KeepAwake() override;
    KeepAwake(const KeepAwake&) = delete;
    KeepAwake& operator=(const KeepAwake&) = delete;

    void PropertyChanged(model::Control& control, model::PropertyBase& property) override;

private:
    std::array<model::Control*, 2> Signs();
    void Follow(bool awake);

    Application& application_;
    bool awake_ = false;
};

}  // namespace app

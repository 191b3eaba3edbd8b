// Lets the event loop run the windows' timer controls.
#pragma once

#include "model/application.h"

namespace app {

/// While it lives, every timer control ticks through the event loop whenever it is enabled and has
/// an interval. A change of either starts its interval anew.
class TimerRunner final : public model::Listener {
public:
    explicit TimerRunner(Application& application);
    ~TimerRunner() override;

    void PropertyChanged(model::Control& control, model::PropertyBase& property) override;

private:
    Application& application_;
};

}  // namespace app

#include "app/timers.h"

#include "model/controls.h"

namespace app {

namespace {

template <class Action>
void ForEachTimer(Application& application, Action action) {
    for (model::Window* window : application.windows.All()) {
        for (model::Control* control : window->Controls()) {
            if (control->Kind() == model::ControlKind::Timer) {
                action(static_cast<model::Timer&>(*control));
            }
        }
    }
}

}  // namespace

TimerRunner::TimerRunner(Application& application) : application_(application) {
    ForEachTimer(application, [this](model::Timer& timer) {
        timer.Listen(this);
        if (timer.Enabled) {
            PropertyChanged(timer, timer.Enabled);
        }
    });
}

TimerRunner::~TimerRunner() {
    ForEachTimer(application_, [this](model::Timer& timer) {
        application_.platform.loop.CancelTimer(&timer);
        timer.Unlisten(this);
    });
}

void TimerRunner::PropertyChanged(model::Control& control, model::PropertyBase&) {
    auto& timer = static_cast<model::Timer&>(control);
    platform::EventLoop& loop = application_.platform.loop;
    if (timer.Enabled && timer.Interval > 0) {
        loop.SetTimer(&timer, timer.Interval, [&timer] { timer.Tick(); });
    } else {
        loop.CancelTimer(&timer);
    }
}

}  // namespace app

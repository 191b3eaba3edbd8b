// Tells the trace which windows come and go, and knows which one lies on top.
#pragma once

#include <vector>

#include "model/windows.h"
#include "platform/trace.h"

namespace tracing {

/// Listens to every window: event "window" with its name and its state, "shown", "hidden" or
/// "unloaded". An unload is one event, whether the window was visible or not.
class WindowTracer : public model::Listener {
public:
    explicit WindowTracer(platform::Trace& trace) : trace_(trace) {}

    /// The tracer outlives the use of the windows.
    void Attach(model::Windows& windows);

    /// The modal window that was shown last and still stands; null when there is none. A window
    /// is modal while it has a property Modal and that is true.
    model::Window* ModalWindow() const;

    void PropertyChanged(model::Control& control, model::PropertyBase& property) override;

private:
    void Tell(const model::Window& window, TextView state);

    platform::Trace& trace_;
    std::vector<model::Window*> visible_;  // in the order they were shown
};

}  // namespace tracing

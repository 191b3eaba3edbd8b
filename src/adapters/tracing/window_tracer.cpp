#include "adapters/tracing/window_tracer.h"

#include <algorithm>

namespace tracing {

void WindowTracer::Attach(model::Windows& windows) {
    for (model::Window* window : windows.All()) {
        window->Listen(this);
        if (window->Visible) {
            visible_.push_back(window);
        }
    }
}

model::Window* WindowTracer::ModalWindow() const {
    for (auto it = visible_.rbegin(); it != visible_.rend(); ++it) {
        const model::PropertyBase* modal = (*it)->FindProperty("Modal");
        if (modal && modal->Read() == model::Value(true)) {
            return *it;
        }
    }
    return nullptr;
}

void WindowTracer::PropertyChanged(model::Control& control, model::PropertyBase& property) {
    if (control.Kind() != model::ControlKind::Window) {
        return;
    }
    model::Window& window = control.Parent();
    if (&property == &window.Visible) {
        std::erase(visible_, &window);
        if (window.Visible) {
            visible_.push_back(&window);
            Tell(window, u"shown");
        } else if (!window.Unloading()) {
            Tell(window, u"hidden");
        }
    } else if (&property == &window.Loaded && !window.Loaded) {
        Tell(window, u"unloaded");
    }
}

void WindowTracer::Tell(const model::Window& window, TextView state) {
    trace_.Event("window", {{"name", text::FromUtf8(window.Name())}, {"state", Text(state)}});
}

}  // namespace tracing

#include "model/monitors.h"

#include <algorithm>

namespace model {

void FillMonitorTable(Application& app) {
    ShowState& state = app.state;
    for (auto* edges :
         {&state.MonitorLeft, &state.MonitorTop, &state.MonitorRight, &state.MonitorBottom}) {
        edges->fill(0);
    }
    state.MonitorCount = 0;
    state.MonitorsRight = 0;
    state.MonitorsBottom = 0;
    constexpr int k = platform::kTwipsPerPixel;
    for (const platform::Rect& pixels : app.platform.monitors.Enumerate()) {
        if (state.MonitorCount == kMonitorsMost) {
            return;
        }
        const auto number = static_cast<size_t>(state.MonitorCount++);
        state.MonitorLeft[number] = pixels.x * k;
        state.MonitorTop[number] = pixels.y * k;
        state.MonitorRight[number] = (pixels.x + pixels.width) * k;
        state.MonitorBottom[number] = (pixels.y + pixels.height) * k;
        state.MonitorsRight = std::max(state.MonitorsRight, state.MonitorRight[number]);
        state.MonitorsBottom = std::max(state.MonitorsBottom, state.MonitorBottom[number]);
    }
}

int MonitorOfMainWindow(Application& app) {
    FillMonitorTable(app);
    const int number = app.platform.monitors.OfMainWindow();
    return number >= 0 && number < app.state.MonitorCount ? number : 0;
}

platform::Rect MonitorTwips(Application& app, int index) {
    FillMonitorTable(app);
    const ShowState& state = app.state;
    const auto usable = [&state](int number) {
        const auto i = static_cast<size_t>(number);
        return number >= 0 && number < state.MonitorCount &&
               state.MonitorRight[i] > state.MonitorLeft[i];
    };
    const auto known = usable(index) ? static_cast<size_t>(index) : size_t{0};
    const int left = state.MonitorLeft[known];
    const int top = state.MonitorTop[known];
    return {left, top, state.MonitorRight[known] - left, state.MonitorBottom[known] - top};
}

void Centre(Window& window, const platform::Rect& area) {
    const platform::Rect place = platform::Centred({window.Width, window.Height}, area);
    window.Left = place.x;
    window.Top = place.y;
}

void CentreOnMonitor(Application& app, Window& window) {
    const platform::Rect monitor = MonitorTwips(app, MonitorOfMainWindow(app));
    window.Width = std::min(window.Width(), monitor.width);
    window.Height = std::min(window.Height(), monitor.height);
    Centre(window, monitor);
}

}  // namespace model

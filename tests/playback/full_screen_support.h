// Shows that run in full screen.
#pragma once

#include "model/windows/main_window.h"
#include "show_support.h"

namespace playback_tests {

/// Two monitors of different size side by side; the main window is on the second one.
inline void UseSecondMonitor(Show& show) {
    show.monitors.monitors = {{0, 0, 1920, 1080}, {1920, 0, 1280, 1024}};
    show.monitors.ofMainWindow = 1;
}

/// A show that has started in full screen without a question.
inline void StartInScreen(Show& show) {
    show.state.FullStartConfirm = 1;
    show.form1.Command4.Click();
}

}  // namespace playback_tests

// Windows that menus and buttons of the main window open.
#pragma once

#include "model/window.h"

namespace app {

/// Shows the window. One that nobody could see stays closed.
inline void OpenWindow(model::Window& window) {
    if (window.HasView) {
        window.Show();
    }
}

/// The same in place of the main window.
inline void OpenInstead(model::Window& window, model::Window& mainWindow) {
    if (window.HasView) {
        mainWindow.Hide();
        window.Show();
    }
}

}  // namespace app

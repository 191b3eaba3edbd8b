// The main window's menus, and its buttons that open windows.
#pragma once

#include "model/application.h"

namespace app {

/// Connects every entry. One that opens a window which is not built yet does nothing.
void AttachMainMenus(Application& application);

}  // namespace app

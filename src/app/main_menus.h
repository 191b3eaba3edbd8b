// The main window's menus.
#pragma once

#include "model/application.h"

namespace app {

/// Connects the file menu and the radio menus. The dialogs and notes of the other entries are not
/// built yet.
void AttachMainMenus(Application& application);

}  // namespace app

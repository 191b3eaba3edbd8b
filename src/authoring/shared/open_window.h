// Windows that menus and buttons of the main window open.
#pragma once

#include "model/application.h"

namespace authoring {

/// False for a window that this version does not have, after a box that says so.
bool CanOpen(Application& application, const model::Window& window);

/// Shows the window if it can be opened.
void OpenWindow(Application& application, model::Window& window);

/// The same as a modal window: returns when it is closed. May throw ProgramEnd.
void OpenModal(Application& application, model::Window& window);

/// The same in place of the main window.
void OpenInstead(Application& application, model::Window& window);

}  // namespace authoring

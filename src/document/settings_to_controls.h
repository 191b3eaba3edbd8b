// Menu checks and option controls follow the settings after these were read from a file.
#pragma once

#include "model/application.h"
#include "model/menu.h"
#include "model/windows/main_window.h"

namespace document {

/// A radio menu and the setting whose value is the index of its checked entry.
struct RadioMenu {
    model::MenuArray model::Form1::*menu;
    int16_t model::ShowState::*field;
    bool keptInDocument;  // a show document carries it; otherwise the state file alone
};
const std::vector<RadioMenu>& RadioMenus();

/// Shows and hides the menus whose presence hangs on a setting.
void FollowMenuVisibility(Application& app);

/// The boxes of Form10.
void FollowSoundListBoxes(Application& app);

/// Checks and controls that a show document carries, and the visibility of the menus that depend
/// on them.
void FollowDocumentSettings(Application& app);

/// The same for every setting: after the state file was read.
void FollowAllSettings(Application& app);

}  // namespace document

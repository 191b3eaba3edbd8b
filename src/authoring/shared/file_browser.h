// The browser that many windows have: a list of places, a list of folders, mostly a list of files.
#pragma once

#include <functional>

#include "model/application.h"
#include "model/list_controls.h"

namespace authoring {

/// Ties the lists together: a place opens its folder. `folderChanged` runs after each change of the
/// folder, whoever made it.
void AttachBrowser(model::DriveList& drive, model::FolderList& dir,
                   std::function<void()> folderChanged = {});

/// The same with the files of the folder.
void AttachBrowser(model::DriveList& drive, model::FolderList& dir, model::FileList& file,
                   std::function<void()> folderChanged = {});

/// Reads the places anew and shows the folder.
void OpenBrowser(model::Application& app, model::DriveList& drive, model::FolderList& dir,
                 const Text& folder);

}  // namespace authoring

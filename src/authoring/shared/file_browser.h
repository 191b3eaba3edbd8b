// The browser that many windows have: a list of places, a list of folders, mostly a list of files.
#pragma once

#include <functional>

#include "model/application.h"
#include "model/list_controls.h"

namespace authoring {

/// Ties the lists together: a place opens its folder, and the places show the one that the folder
/// lies in. `folderChanged` runs after each change of the folder, whoever made it.
void AttachBrowser(model::DriveList& drive, model::FolderList& dir,
                   std::function<void()> folderChanged = {});

/// The same with the files of the folder.
void AttachBrowser(model::DriveList& drive, model::FolderList& dir, model::FileList& file,
                   std::function<void()> folderChanged = {});

/// Reads the places anew, those of the person's habit among them (browser_memory.h), and shows the
/// folder; once each time that a window comes up. The folder counts as changed.
void OpenBrowser(Application& app, model::DriveList& drive, model::FolderList& dir,
                 const Text& folder);

/// The same with its files, with thumbnails where a person chose so last.
void OpenBrowser(Application& app, model::DriveList& drive, model::FolderList& dir,
                 model::FileList& file, const Text& folder);

/// Reads the files anew, as when the window is come back to. A list that is the same keeps its
/// place.
void RefreshFiles(Application& app, model::FileList& files);

/// The root and the folder that holds the users' home folders, with or without a separator at the
/// end: no place to keep files in.
bool IsRefusedFolder(Application& app, TextView folder);

}  // namespace authoring

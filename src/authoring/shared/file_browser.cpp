#include "authoring/shared/file_browser.h"

#include <utility>

#include "text/paths.h"

namespace authoring {

namespace {

/// The place that the folder lies in: the one with the longest path.
const platform::Place* PlaceOf(const model::DriveList& drive, const Text& folder) {
    const platform::Place* best = nullptr;
    const Text inside = text::WithSeparator(folder);
    for (const platform::Place& place : drive.Places()) {
        const bool longer = !best || place.path.size() > best->path.size();
        if (longer && inside.starts_with(text::WithSeparator(place.path))) {
            best = &place;
        }
    }
    return best;
}

}  // namespace

void AttachBrowser(model::DriveList& drive, model::FolderList& dir,
                   std::function<void()> folderChanged) {
    drive.Change = [&drive, &dir] { dir.Path = drive.Drive(); };
    dir.Change = [folderChanged = std::move(folderChanged)] {
        if (folderChanged) {
            folderChanged();
        }
    };
}

void AttachBrowser(model::DriveList& drive, model::FolderList& dir, model::FileList& file,
                   std::function<void()> folderChanged) {
    AttachBrowser(drive, dir, [&dir, &file, folderChanged = std::move(folderChanged)] {
        file.Path = dir.Path();
        if (folderChanged) {
            folderChanged();
        }
    });
}

void OpenBrowser(model::Application& app, model::DriveList& drive, model::FolderList& dir,
                 const Text& folder) {
    drive.folders = &app.platform.folders;
    dir.folders = &app.platform.folders;
    drive.Refresh();
    if (const platform::Place* place = PlaceOf(drive, folder)) {
        drive.Drive = place->path;
    }
    dir.Path = folder;
    dir.Refresh();  // the folder of the last time may have changed meanwhile
}

}  // namespace authoring

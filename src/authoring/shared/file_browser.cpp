#include "authoring/shared/file_browser.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "authoring/shared/browser_memory.h"
#include "text/paths.h"

namespace authoring {

void AttachBrowser(model::DriveList& drive, model::FolderList& dir,
                   std::function<void()> folderChanged) {
    // While one of the two follows the other, its change is no news to that one.
    const auto following = std::make_shared<bool>(false);
    drive.Change = [&drive, &dir, following] {
        if (!*following) {
            *following = true;
            dir.Path = drive.Drive();
            *following = false;
        }
    };
    dir.Change = [&drive, &dir, following, folderChanged = std::move(folderChanged)] {
        if (const int row = drive.RowOf(dir.Path()); !*following && row >= 0) {
            *following = true;
            drive.Drive = drive.List(row);
            *following = false;
        }
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

void OpenBrowser(Application& app, model::DriveList& drive, model::FolderList& dir,
                 const Text& folder) {
    drive.folders = &app.platform.folders;
    dir.folders = &app.platform.folders;
    drive.Refresh(OwnPlaces(app, ReadBrowserMemory(app)));
    if (dir.Path() == folder) {
        dir.Refresh();  // what it holds may have changed since the last time
        dir.Change();
    }
    dir.Path = folder;
}

void OpenBrowser(Application& app, model::DriveList& drive, model::FolderList& dir,
                 model::FileList& file, const Text& folder) {
    file.folders = &app.platform.folders;
    file.thumbnails = &app.platform.thumbnails;
    file.Pictures = ReadBrowserMemory(app).pictures;
    file.PicturesChanged.Anew() = [&app, &file] { RememberPictures(app, file.Pictures); };
    OpenBrowser(app, drive, dir, folder);
    file.Refresh();
}

void RefreshFiles(Application& app, model::FileList& files) {
    const std::vector<Text> now = app.platform.folders.Files(files.Path(), files.Pattern());
    if (!std::equal(now.begin(), now.end(), files.Rows().begin(), files.Rows().end())) {
        files.Refresh();
    }
}

bool IsRefusedFolder(Application& app, TextView folder) {
    const Text bare = text::WithoutSeparator(folder);
    const Text upper = text::Upper(bare);
    return bare == u"/" || bare == app.platform.folders.HomeFolders() || upper == u"C:\\" ||
           upper == u"C:\\USERS";
}

}  // namespace authoring

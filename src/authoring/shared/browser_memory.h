// What the browsers of all windows remember from one run to the next: browser.dat of the program
// folder.
#pragma once

#include <vector>

#include "model/application.h"

namespace authoring {

struct UsedFolder {
    Text folder;
    int times = 0;
};

struct BrowserMemory {
    bool pictures = false;         // lists of files show thumbnails
    Text last;                     // the folder that was taken last
    std::vector<UsedFolder> used;  // the one taken last first
};

/// Empty where there is no file, or none of this form.
BrowserMemory ReadBrowserMemory(Application& app);

/// A person took the folder, or something in it. What cannot be written is not remembered.
void RememberFolder(Application& app, const Text& folder);

/// A person chose between names and thumbnails.
void RememberPictures(Application& app, bool pictures);

/// The folders that stand among a browser's places beside the desktop's own: the document's, the
/// last one, and those used most, each once and only while it is there.
std::vector<platform::Place> OwnPlaces(Application& app, const BrowserMemory& memory);

}  // namespace authoring

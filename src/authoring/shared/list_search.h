// 検索: the files of a folder and of all below it come into the list of a window.
#pragma once

#include "authoring/shared/list_window.h"
#include "model/list_controls.h"

namespace authoring {

/// What a search has to do with beside the list itself; kept as long as the application.
struct SearchPlace {
    ListWindow list;
    model::FolderList& dir;  // where it begins
    model::FileList& files;
    TextView pattern;  // of `files`, which gets it back at the end
    /// Asks what is sought and leaves that in SearchPattern.
    model::Window& dialog;
    model::Label& searched;  // says which folder is searched just now
    model::Label& found;     // says what the search has come to, in `unit`
    TextView unit;
};

/// The window's `stop`. A search lets everything else run meanwhile; it is one step that can be
/// undone, however it ends.
void AttachTreeSearch(const SearchPlace& place);

}  // namespace authoring

// How rows come into the list of a window, leave it and change places, as all these windows have
// it.
#pragma once

#include <vector>

#include "authoring/shared/list_window.h"

namespace authoring {

/// Puts rows in front of row `before` until the list is full, with a box that says so, which comes
/// at once with the last row, under the window's title for it or the one given. False once it is
/// full. Nothing that was added is taken back.
bool InsertRows(const ListWindow& window, int before, std::vector<model::ListRow> rows,
                TextView fullTitle = {});

/// Adds the files in their order under the same rule: at the end, or with `insert` ticked and one
/// selected row in front of the current one, which stays current.
bool AddRows(const ListWindow& window, std::vector<Text> paths, TextView fullTitle = {});

/// What a click on a file in the browser does: adds it and scrolls on by one.
void AddClickedFile(const ListWindow& window, const model::FileList& files,
                    TextView fullTitle = {});

/// What 一括選択 does with the files of a folder: adds them all and scrolls on. A full list also
/// ends a search.
void AddFolderFiles(const ListWindow& window, std::vector<Text> paths, TextView fullTitle = {});
/// Full paths of the files that a browser shows.
std::vector<Text> ShownFiles(const model::FileList& files);

/// What a drop does: adds those files that the list takes.
void AddDroppedFiles(const ListWindow& window, const std::vector<Text>& paths,
                     TextView fullTitle = {});

/// Takes out the selected rows that are seen. False where there are none.
bool RemoveSelectedRows(const ListWindow& window);

/// Asks whether all rows shall go, and says so where some of them are not seen.
bool AskToClear(const ListWindow& window, TextView question);

/// The selected row and the next one in that direction (-1 up, 1 down) that is seen change places;
/// it stays selected and current. A warning under that title without exactly one selected row.
/// False where nothing moved.
bool MoveSelectedRow(const ListWindow& window, int direction, TextView title);

/// The selected rows were dragged in front of row `before`. Stops a search instead while one runs.
void MoveDraggedRows(const ListWindow& window, int before);

}  // namespace authoring

// What a list's window knows of the files of its rows. It is asked for while rows are drawn, and
// answers without waiting: what it does not know it finds out, and then has the rows drawn anew.
#pragma once

#include "model/application.h"
#include "model/known_files.h"
#include "model/list_controls.h"

namespace authoring {

/// Names what belongs to the application.
struct FilesOfRows {
    model::Application& app;
    model::KnownFiles& known;
    model::ListBox& rows;
};

/// Whether the file is there, as far as it is known; `presumed` until then. The row's face changes
/// when that turns out otherwise.
bool IsThere(const FilesOfRows& files, int row, const Text& path, bool presumed);

/// Files may have come and gone, or be others by now: the rows that are seen ask again. What is
/// known meanwhile stays.
void AskAgain(const FilesOfRows& files);

/// The same for one file, which the program itself has made or deleted.
void AskAgain(const FilesOfRows& files, const Text& path);

}  // namespace authoring

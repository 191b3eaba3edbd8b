// State files that are there and were not read to their end: they may hold what the program does
// not know, and so are never replaced.
#pragma once

#include "document/state_files.h"

namespace document {

/// Remembers what was had from the file, until the next read of it. Missing and empty files have
/// nothing to lose.
void NoteTaken(Application& app, const Text& path, Taken taken);

/// Ahead of a write: sets a file aside that was not read to its end, and tells the person. False
/// where that cannot be done, which is told, too; the file must then stay.
bool KeepUnread(Application& app, const Text& path);

}  // namespace document

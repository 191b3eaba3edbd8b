// State files that are there and were not read to their end: they may hold what the program does
// not know, and so are never replaced.
#pragma once

#include "model/application.h"

namespace document {

/// What was had from a state file. Partly: reading stopped at a fault, at what there is no room
/// for, or before lines that the form does not have.
enum class Taken { Nothing, Partly, Whole };

/// Remembers what was had from the file, until the next read of it. Missing and empty files have
/// nothing to lose.
void NoteTaken(Application& app, const Text& path, Taken taken);

/// Before a write: sets a file aside that was not read to its end, and a box says so. False
/// where that cannot be done, which a box says, too; the file must then stay.
bool KeepUnread(Application& app, const Text& path);

}  // namespace document

// Slides come into the slide list: by a click on a file, all files of a folder, a drop, a search.
#pragma once

#include <vector>

#include "model/application.h"
#include "model/row_history.h"

namespace authoring {

void AttachAdding(Application& app);

/// File1's pattern: what can be a slide.
extern const TextView kSlidePatterns;

/// Adds the paths in their order until the list is full, with a box that says so: at the end, or
/// with Check6 and one selected row in front of the current one, which stays current. False once it
/// is full. Nothing that was added is taken back.
bool AddSlides(Application& app, std::vector<Text> paths);

/// Puts rows in front of row `before` under the same rule.
bool InsertSlides(Application& app, int before, std::vector<model::ListRow> rows);

/// Of the kinds that a drop takes; the browser shows more.
bool IsDroppedKind(TextView path);

/// What 一括選択 does with the files of a folder: adds them all and scrolls on. A full list also
/// ends a search.
void AddFiles(Application& app, std::vector<Text> paths);

}  // namespace authoring

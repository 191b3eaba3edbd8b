// What is seen of the rows of Form3's list: thumbnail, names, schedule, and marks for what lies
// beside a slide or is missing.
#pragma once

#include "model/application.h"

namespace authoring {

/// Gives List1 its faces; mnuFACE chooses between lines and pictures.
void AttachRowFaces(model::Application& app);

/// Files may have come and gone, or be others by now: the rows that are seen ask again. What is
/// known meanwhile stays.
void RefreshFaces(model::Application& app);

/// The same for one file, which the program itself has made or deleted.
void ForgetFacts(model::Application& app, const Text& path);

/// A schedule row in short: "2026/01/01 08:00 – 2026/01/31", "– 2026/01/31", or nothing.
Text ScheduleInShort(TextView scheduleRow);

}  // namespace authoring

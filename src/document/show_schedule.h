// The schedule arrays, which mirror the rows of Form3's List2, slide by slide.
#pragma once

#include <optional>

#include "model/application.h"

namespace document {

/// Row of Form3's two lists in which entry `slide` (from 1) of SlideList stands; nothing for a film
/// that reading a document left out of them.
std::optional<int> RowOfSlide(const Application& app, int slide);

/// ScheduleFrom and ScheduleTo anew, one entry for each of SlideList: that of the slide's own row.
/// Films that the lists leave out keep what the arrays hold for them. Where lists and SlideList do
/// not belong together, as while a person edits the lists, entry i is that of row i.
void RebuildSchedule(Application& app);

}  // namespace document

// The selected slides of the slide list, and the buttons that work on them.
#pragma once

#include <optional>
#include <vector>

#include "model/application.h"

namespace authoring {

void AttachSelection(Application& app);

/// Rows that are selected and seen, from the top.
std::vector<int> SelectedSlides(const Application& app);

/// The one row of these; where there is not exactly one, a warning under that title says that one
/// has to be chosen.
std::optional<int> AskForOneSlide(Application& app, TextView title);

/// The current row; where the filter hides it the first one that is selected and seen. -1: none.
int RowInSight(const Application& app);

/// Enables the buttons for linked files and the cut-out generator as the selection and the files
/// on the disk have it, and previews the row in sight. Neither while Check1 is off.
void FollowSelection(Application& app);

/// Command16 to Command20.
void DisableLinkedFileButtons(Application& app);
/// These and Command25: nothing is selected any more.
void DisableSlideButtons(Application& app);

}  // namespace authoring

// The slide list's window hands its rows to the show, or takes the show's back.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachCommit(Application& app);

/// What OK does: the show gets the rows as its slides and stands at its beginning, the main window
/// comes up, the slide list's window goes.
void CommitSlideList(Application& app);

/// The main window comes up in place of the slide list's, which is hidden.
void BackToMainWindow(Application& app);

}  // namespace authoring

// How whatever is pressed while a search runs stops it.
#pragma once

#include "model/application.h"

namespace authoring {

/// True when a search of a folder tree runs, which then ends: whoever was pressed does nothing
/// else. The first line of most buttons and menu entries of the slide list's window.
bool StoppedSearch(Application& app);

}  // namespace authoring

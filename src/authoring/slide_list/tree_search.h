// 検索: the files of a folder and of all below it come into the slide list.
#pragma once

#include "model/application.h"

namespace authoring {

/// Command8. A search lets everything else run meanwhile; it is one step that can be undone,
/// however it ends.
void AttachTreeSearch(Application& app);

}  // namespace authoring

// Slides leave the slide list or change places.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachRows(Application& app);

/// 選択取消, also by a key and a menu: takes out the selected rows that are seen and asks nothing.
/// Stops a search instead while one runs.
void RemoveSelectedSlides(Application& app);

}  // namespace authoring

// Form10 as one of the windows in which a person builds a list.
#pragma once

#include "authoring/shared/list_window.h"

namespace authoring {

/// File1's pattern.
constexpr TextView kSoundPatterns = u"*.wav;*.mid;*.mp3";

ListWindow Sounds(Application& app);

/// The button of the preview is enabled while a row is selected and nothing plays.
void FollowSoundSelection(Application& app);

}  // namespace authoring

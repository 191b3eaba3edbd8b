// What a person has under way beside a slide: a recording of its sound.
#pragma once

#include "model/application.h"

namespace authoring {

/// Ends a recording that runs. Called before whatever changes the slides or their linked files. A
/// text that is open in the person's editor stays open: it may hold what is not saved.
void StopLinkedWork(Application& app);

}  // namespace authoring

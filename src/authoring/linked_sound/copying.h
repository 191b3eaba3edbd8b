// form13: makes the sound that is linked to a slide by copying a file under its name.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachCopying(model::Application& app);

/// Shows form13 for the slide and returns when it is closed: by a copy that was made, or by a
/// person. After a refusal it stays open. May throw ProgramEnd.
void OpenCopying(Application& app, TextView slide);

}  // namespace authoring

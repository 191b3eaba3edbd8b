// Form20: records the sound that is linked to a slide, and plays it.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachRecording(model::Application& app);

/// Shows Form20 for the slide and returns when it is closed. Nothing is written before a recording
/// was stopped, and then the whole of it. May throw ProgramEnd.
void OpenRecording(Application& app, TextView slide);

}  // namespace authoring

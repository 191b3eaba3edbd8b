// The caption of the main window.
#pragma once

#include "model/application.h"

namespace document {

/// "ｽﾗｲﾄﾞ - " and DocumentPath; without a document the program's name.
void ShowDocumentCaption(Application& app);

/// CurrentName, of the slide that comes up, there and on the control box.
void ShowSlideCaption(Application& app);

/// What a dialog for saving offers first: the caption from the document's path on.
Text NameInCaption(const Application& app);

}  // namespace document

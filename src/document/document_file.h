// What the readers of show and link documents share: opening and refusing.
#pragma once

#include <optional>

#include "model/application.h"

namespace document {

/// Decoded text of the file. Nullopt where it cannot be opened, after showing the platform's words
/// in a box without title.
std::optional<Text> OpenDocument(Application& app, TextView path);

/// Tells the user that the file does not suit.
void RefuseDocument(Application& app, TextView path);

/// Throws ProgramEnd while the document that was named at program start is being read.
void EndIfLoadingFromStart(const Application& app);

}  // namespace document

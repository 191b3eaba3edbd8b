// What the show and link documents share: opening, saving and refusing.
#pragma once

#include <optional>

#include "model/application.h"

namespace document {

/// Decoded text of the file. Nullopt where it cannot be opened, after showing the platform's words
/// in a box without title; at program start that ends the program (EndIfLoadingFromStart).
std::optional<Text> OpenDocument(Application& app, TextView path);

/// Writes the text, whole or not at all. False after showing the platform's words: in a plain box
/// where the file cannot be opened, under the title of saving where its content cannot be written.
bool SaveDocumentFile(Application& app, TextView path, TextView content);

/// Tells the user that the file does not suit.
void RefuseDocument(Application& app, TextView path);

/// Throws ProgramEnd with status 1 while the document that was named at program start is being
/// read.
void EndIfLoadingFromStart(const Application& app);

}  // namespace document

// Show documents of the slide list: new, open, save, distribution save.
#pragma once

#include "model/application.h"

namespace authoring {

/// The buttons of the slide list's window.
void AttachDocuments(Application& app);

// All of them stop a search of the slide list instead, while one runs. Opening and a new document
// are steps that can be undone: rows, path, name, folder and date come back together.

/// Asks, then clears slide list, sound list and settings, and keeps that in their files at once: a
/// new document. False, and nothing changed, on a no.
bool NewDocument(Application& app);

/// Asks for a show document and reads it. False on cancel: then nothing has changed. True says
/// that one was chosen; a refused one leaves ShowAbort at 1 and perhaps an empty list.
bool OpenDocument(Application& app);
/// The same for a document that was chosen already.
void OpenDocument(Application& app, TextView path);

/// Ask for a path and write the document; refused with a message while the list is empty.
void SaveDocument(Application& app);
void SaveForDistribution(Application& app);

}  // namespace authoring

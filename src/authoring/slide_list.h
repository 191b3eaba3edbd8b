// Form3: builds the slide list. So far the operations that the main window's file menu forwards.
#pragma once

#include "model/application.h"

namespace authoring {

/// Asks, then clears lists and settings: a new document.
void NewDocument(Application& app);

/// Asks for a show document and reads it. True when one was read.
bool OpenDocument(Application& app);

/// Reads the document at `path`, as if it had been chosen.
bool OpenDocumentAt(Application& app, const Text& path);

/// Ask for a path and write the document; refused with a message while the list is empty.
void SaveDocument(Application& app);
void SaveForDistribution(Application& app);

}  // namespace authoring

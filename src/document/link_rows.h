// The rows of Form9's list: the shows of a chain.
#pragma once

#include "document/row_edits.h"
#include "model/application.h"

namespace document {

/// Form9's title by the link document that it shows: its path, or the name alone where only that is
/// known.
void ShowLinkCaption(Application& app);

/// The rows for row_edits. LinkDocumentPath and LinkDocumentName are their identity.
EditedList LinkRows(Application& app);

/// Undo and Redo of LinkRows; the title follows.
bool UndoLinkRows(Application& app);
bool RedoLinkRows(Application& app);

}  // namespace document

// Link documents (.kvl): a list of show documents that run one after the other.
#pragma once

#include "model/application.h"

namespace document {

/// Reads the document into Form9's list; the caller sets BaseFolder first. Sets LinkDocumentPath,
/// LinkDocumentName and the window's caption. False after a failure, which is reported as with show
/// documents: the platform's words, or the message of a refused file. Either ends the program
/// (ProgramEnd) while LoadingFromStart is 1.
bool ReadLinkDocument(Application& app, TextView path);

/// Writes Form9's list, whole or not at all; names without folders when DistributionSaveFlag is 1.
/// Adds ".kvl" to a path without extension. Sets path, name and caption as reading does. A failure
/// shows the platform's words, changes nothing and is answered with false.
bool WriteLinkDocument(Application& app, TextView path);

}  // namespace document

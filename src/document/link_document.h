// Link documents (.kvl): a list of show documents that run one after the other.
#pragma once

#include "model/application.h"

namespace document {

/// Reads the document into Form9's list; the caller sets BaseFolder first. False after a failure,
/// which is told as with show documents: the platform's words, or the message of a refused file
/// (ProgramEnd while LoadingFromStart is 1).
bool ReadLinkDocument(Application& app, TextView path);

}  // namespace document

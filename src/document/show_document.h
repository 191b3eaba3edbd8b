// Show documents (.kvs): one text file with a slide list and nearly all settings.
#pragma once

#include <functional>

#include "model/application.h"

namespace document {

/// Reads a document of any version into the show state, the lists of Form3 and Form10, and the
/// controls and menu checks that follow the settings. The caller sets BaseFolder first.
/// Failing: a file that cannot be opened shows the platform's words and changes nothing; a refused
/// tag or a failure half-way shows a message, sets ShowAbort to 1 and leaves what was read. Either
/// ends the program (ProgramEnd) when LoadingFromStart is 1. False where it cannot be opened.
bool ReadShowDocument(Application& app, TextView path);

/// Writes the newest form, whole or not at all; names without folders when DistributionSaveFlag
/// is 1. Adds ".kvs" to a path without extension. Rebuilds ScheduleFrom and ScheduleTo, sets the
/// document's identity and the caption. A failure shows the platform's words: in a plain box where
/// the file cannot be opened, under the title of saving where its content cannot be written; false
/// then.
bool WriteShowDocument(Application& app, TextView path);

/// The text of a document that stands beside all its files, under that path: `named` says how a
/// name goes into it, and there is no linked folder. Changes nothing.
Text TextOfCopiedShow(const Application& app, TextView path,
                      const std::function<Text(const Text&)>& named);

}  // namespace document

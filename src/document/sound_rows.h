// The pieces of the sound list: what a person edits (List1 of Form10) and what a show plays
// (SoundList). All that changes either is here and in row_edits.
#pragma once

#include "document/row_edits.h"
#include "model/application.h"

namespace document {

/// The rows for row_edits.
EditedList SoundRows(Application& app);

/// The rows become the first `count` entries of SoundList. Where they are others nothing can be
/// undone afterwards.
void ShowSounds(Application& app, int count);

/// SoundList becomes what the rows are.
void CommitSounds(Application& app);

/// The rows become what SoundList is, as a step that can be undone.
void RevertSoundRows(Application& app);

/// No pieces, in the window and for the show.
void ClearSounds(Application& app);

}  // namespace document

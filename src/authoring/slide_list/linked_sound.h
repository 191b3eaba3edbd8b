// The linked sound of the selected slide: recorded, deleted, assigned.
#pragma once

#include "model/application.h"

namespace authoring {

/// Command18, Command19 and Command20.
void AttachLinkedSound(Application& app);

/// Opens the window that records the slide's sound, and returns when it is closed.
void RecordLinkedSound(Application& app, const Text& slide);

enum class LinkedSound { Wav, Mp3 };
/// Asks with the path `shown` whether the slide's sound is to be deleted, and deletes it on a yes.
void AskToDeleteLinkedSound(Application& app, const Text& slide, LinkedSound kind,
                            const Text& shown);

}  // namespace authoring

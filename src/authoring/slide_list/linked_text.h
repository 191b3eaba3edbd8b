// The linked text of the selected slide: made, opened in an editor, deleted.
#pragma once

#include "model/application.h"

namespace authoring {

/// Command16 and Command17.
void AttachLinkedText(Application& app);

/// Makes the slide's text where it has none and opens it in the person's editor; see
/// macro::EditMacroText. It can be deleted then.
void MakeLinkedText(Application& app, const Text& slide);

/// Asks with the path `shown` whether the slide's text is to be deleted, and deletes it on a yes.
void AskToDeleteLinkedText(Application& app, const Text& slide, const Text& shown);

/// Asks with the path whether a text is to be made.
bool AskForLinkedText(Application& app, const Text& shown);

}  // namespace authoring

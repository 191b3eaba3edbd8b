// The text file of a slide's macro, as a person first gets it to write in.
#pragma once

#include "model/application.h"

namespace macro {

/// Makes the macro file of `slide` (a path of the slide list) where there is none, and opens it in
/// the person's editor, which goes on by itself. What a new file holds: header.txt of the program
/// folder while UserHeaderFlag is 0, else the built-in template, with the file's own name after it
/// while UserHeaderFlag is 1.
/// With PendingMacroText a present file is replaced too, the text follows the head, and no
/// editor opens. False, with a message, when the file cannot be made; nothing is changed then.
bool EditMacroText(Application& app, TextView slide);

}  // namespace macro

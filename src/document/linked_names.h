// Names of the files that belong to a slide: same base name, other extension.
#pragma once

#include "model/application.h"

namespace document {

/// `extension` is "wav", "mid", "mp3" or "txt". Beside the picture: the path less its last three
/// characters, by plain count (x.jpeg gives x.jwav). With LinkedFolderFlag set: in LinkedFolder,
/// the picture's name as the disk spells it less three characters; a picture missing on disk then
/// gives the folder and no name, not even the extension's base.
Text LinkedName(Application& app, TextView slidePath, TextView extension);

/// The same without asking the disk: by the picture's name as the path has it, there or not.
Text LinkedNameAsWritten(const model::ShowState& state, TextView slidePath, TextView extension);

}  // namespace document

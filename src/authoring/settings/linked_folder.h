// Form12: in which folder the files linked to a picture lie.
#pragma once

#include "model/application.h"

namespace authoring {

/// Attaches the handlers of Form12. Its ＯＫ sets LinkedFolderFlag and LinkedFolder; the folder
/// that holds the users' home folders and the root are refused with a message.
void AttachLinkedFolder(model::Application& app);

}  // namespace authoring

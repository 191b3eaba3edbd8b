#include "authoring/attach.h"

#include "authoring/settings/linked_folder.h"
#include "authoring/settings/text_display.h"

namespace authoring {

void AttachWindows(model::Application& app) {
    AttachLinkedFolder(app);
    AttachTextDisplay(app);
}

}  // namespace authoring

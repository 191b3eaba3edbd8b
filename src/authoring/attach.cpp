#include "authoring/attach.h"

#include "authoring/batch_conversion.h"
#include "authoring/link_list/window.h"
#include "authoring/linked_sound/copying.h"
#include "authoring/linked_sound/recording.h"
#include "authoring/settings/background_sound.h"
#include "authoring/settings/cd_program.h"
#include "authoring/settings/linked_folder.h"
#include "authoring/settings/text_display.h"
#include "authoring/shared/file_search.h"
#include "authoring/slide_list/window.h"
#include "authoring/sound_list/window.h"

namespace authoring {

void AttachWindows(model::Application& app) {
    AttachLinkedFolder(app);
    AttachTextDisplay(app);
    AttachCdProgram(app);
    AttachBatchConversion(app);
    AttachFileSearch(app);
    AttachSlideList(app);
    AttachLinkList(app);
    AttachSoundList(app);
    AttachRecording(app);
    AttachCopying(app);
    AttachBackgroundSound(app);
}

}  // namespace authoring

#include "authoring/sound_list.h"

#include "model/windows/sound_windows.h"

namespace authoring {

void ClearSoundList(Application& app) {
    app.windows.form10.List1.Clear();
    app.windows.form10.Label4.Caption = u"0";
    app.state.SoundList.Erase();
    app.state.SoundListCount = 0;
}

}  // namespace authoring

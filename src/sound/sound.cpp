#include "sound/sound.h"

namespace sound {

void StartSound(Application&) {}

void StopSound(Application& app) {
    if (app.state.SlideIndex == 0) {
        RestoreCaption(app);
    }
}

void RestoreCaption(Application& app) {
    app.windows.form1.Caption = app.state.DocumentPath.empty()
                                    ? Text(u"ﾊﾟﾗﾋﾟｺ Win Ver.9.10")
                                    : u"ｽﾗｲﾄﾞ - " + app.state.DocumentPath;
}

void StartCd(Application&) {}
void StopCd(Application&) {}

}  // namespace sound

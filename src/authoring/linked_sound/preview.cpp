#include "authoring/linked_sound/preview.h"

#include "sound/answer.h"
#include "sound/sound.h"

namespace authoring {

void AwaitPreview(Application& app) {
    constexpr int kPollMs = 10;
    while (app.state.SoundPreviewStop != 1 && sound::Reports(app, u"status wav mode", u"playing")) {
        app.platform.loop.PumpEvents();
        app.platform.loop.Sleep(kPollMs);
    }
}

void MakeRoomForPreview(Application& app) {
    app.state.SoundPreviewStop = 0;
    if (app.state.SoundOpen == 1) {
        sound::StopSound(app);
    }
}

}  // namespace authoring

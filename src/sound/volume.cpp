#include "sound/volume.h"

#include "model/sound_modes.h"
#include "sound/answer.h"
#include "sound/sound.h"
#include "text/numbers.h"

namespace sound {

namespace {

constexpr int kFadePassMs = 100;

}  // namespace

void SendVolume(Application& app, int volume) {
    if (const char16_t* alias = model::SoundModeInForce(app.state).alias) {
        app.platform.sound.MciSendString(u"setaudio " + Text(alias) + u" volume to " +
                                         text::Trim(text::Str(volume)));
    }
}

bool FadeOut(Application& app, int step) {
    const model::ShowState& state = app.state;
    const int full = kFullVolume - state.Mp3VolumeOffset;
    const TextView question =
        state.SoundMode == model::kListSound ? u"status wav mode" : u"status mp3 mode";
    if (Reports(app, question, u"playing")) {
        int volume = full;
        while (volume >= 0 && state.SoundOpen == 1) {
            volume -= step;
            SendVolume(app, volume);
            app.platform.loop.Sleep(kFadePassMs);
            app.platform.loop.PumpEvents();
            if (model::StepOutlived(state)) {
                return false;
            }
            if (state.StopRequest == 1 || state.FullScreenClosed == 1) {
                if (state.SoundOpen == 1) {
                    SendVolume(app, full);
                }
                return false;
            }
        }
    }
    StopSound(app);
    return true;
}

}  // namespace sound

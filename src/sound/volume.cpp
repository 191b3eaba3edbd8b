#include "sound/volume.h"

#include "sound/sound.h"
#include "text/numbers.h"

namespace sound {

namespace {

/// Alias of each sound mode; null: none.
constexpr const char16_t* kAliases[] = {nullptr, u"wav", u"cdaudio", u"wav", u"mid",
                                        u"mid",  u"wav", nullptr,    u"mp3", u"mp3"};

constexpr int kFadePassMs = 100;
constexpr int kListMode = 6;

}  // namespace

void SendVolume(Application& app, int volume) {
    const auto mode = static_cast<size_t>(app.state.SoundMode);
    if (mode < std::size(kAliases) && kAliases[mode] != nullptr) {
        app.platform.sound.MciSendString(u"setaudio " + Text(kAliases[mode]) + u" volume to " +
                                         text::Trim(text::Str(volume)));
    }
}

bool FadeOut(Application& app, int step) {
    const model::ShowState& state = app.state;
    const int full = kFullVolume - state.Mp3VolumeOffset;
    const TextView question =
        state.SoundMode == kListMode ? u"status wav mode" : u"status mp3 mode";
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

bool Reports(Application& app, TextView question, TextView answer) {
    return text::Left(app.platform.sound.MciSendString(question), answer.size()) == answer;
}

}  // namespace sound

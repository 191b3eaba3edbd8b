#include "sound/volume.h"

#include "text/numbers.h"

namespace sound {

namespace {

/// Alias of each sound mode; null: none.
constexpr const char16_t* kAliases[] = {nullptr, u"wav", u"cdaudio", u"wav", u"mid",
                                        u"mid",  u"wav", nullptr,    u"mp3", u"mp3"};

}  // namespace

void SendVolume(Application& app, int volume) {
    const auto mode = static_cast<size_t>(app.state.SoundMode);
    if (mode < std::size(kAliases) && kAliases[mode] != nullptr) {
        app.platform.sound.MciSendString(u"setaudio " + Text(kAliases[mode]) + u" volume to " +
                                         text::Trim(text::Str(volume)));
    }
}

bool Reports(Application& app, TextView question, TextView answer) {
    return text::Left(app.platform.sound.MciSendString(question), answer.size()) == answer;
}

}  // namespace sound

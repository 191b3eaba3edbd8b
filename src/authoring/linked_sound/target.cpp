#include "authoring/linked_sound/target.h"

#include "document/linked_names.h"
#include "platform/wave_format.h"
#include "text/paths.h"

namespace authoring {

void TakeLinkedSoundTarget(Application& app, TextView slide) {
    app.state.LinkedSoundTarget = document::LinkedName(app, slide, u"wav");
}

Text LinkedSoundTargetAs(const Application& app, TextView extension) {
    const Text& target = app.state.LinkedSoundTarget;
    if (text::BareName(target).size() < extension.size()) {
        return target;
    }
    return target.substr(0, target.size() - extension.size()) + Text(extension);
}

bool MakeLinkedWavFile(Application& app, TextView slide, int16_t flag) {
    TakeLinkedSoundTarget(app, slide);
    const Text& target = app.state.LinkedSoundTarget;
    platform::FileError error;
    if (flag != 1 || app.platform.files.Exists(target) ||
        app.platform.files.Write(target, platform::EmptyWaveFile(), error)) {
        return true;
    }
    app.platform.dialogs.Message(u"ＷＡＶファイルが作成できんません。", platform::kExclamation,
                                 u"効果音ファイル作成エラー");
    return false;
}

}  // namespace authoring

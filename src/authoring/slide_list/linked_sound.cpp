#include "authoring/slide_list/linked_sound.h"

#include "authoring/linked_sound/copying.h"
#include "authoring/linked_sound/recording.h"
#include "authoring/shared/list_window.h"
#include "authoring/slide_list/linked_work.h"
#include "authoring/slide_list/row_faces.h"
#include "authoring/slide_list/selection.h"
#include "document/linked_names.h"
#include "model/sound_modes.h"
#include "model/windows/slide_list.h"

namespace authoring {

namespace {

struct Kind {
    TextView extension, question, title;
};

Kind KindOf(LinkedSound kind) {
    if (kind == LinkedSound::Mp3) {
        return {u"mp3", u"\r\nの画像連動音声ファイル(MP3)を削除しますか ?", u"連動音声削除(MP3)"};
    }
    return {u"wav", u"\r\nの画像連動効果音(WAV)を削除しますか ?", u"連動音声削除(WAV)"};
}

void Command19_Click(Application& app) {
    const std::optional<int> row = AskForOneSlide(app, u"連動音削除");
    if (!row) {
        return;
    }
    const LinkedSound kind =
        app.state.SoundMode == model::kLinkedMp3Sound ? LinkedSound::Mp3 : LinkedSound::Wav;
    const Text slide = app.windows.form3.List1.List(*row);
    AskToDeleteLinkedSound(app, slide, kind,
                           document::LinkedName(app, slide, KindOf(kind).extension));
}

/// The slide may have other sounds now.
void FollowSounds(Application& app, const Text& slide) {
    for (const TextView extension : {u"wav", u"mp3"}) {
        ForgetFacts(app, document::LinkedName(app, slide, extension));
    }
    if (OnlySelectedRow(app.windows.form3.List1)) {
        FollowSelection(app);
    }
}

void Command20_Click(Application& app) {
    if (const std::optional<int> row = AskForOneSlide(app, u"連動音設定")) {
        const Text slide = app.windows.form3.List1.List(*row);
        OpenCopying(app, slide);
        FollowSounds(app, slide);
    }
}

}  // namespace

void RecordLinkedSound(Application& app, const Text& slide) {
    StopLinkedWork(app);
    OpenRecording(app, slide);
    FollowSounds(app, slide);
}

void AskToDeleteLinkedSound(Application& app, const Text& slide, LinkedSound kind,
                            const Text& shown) {
    const Kind words = KindOf(kind);
    if (app.platform.dialogs.Message(shown + Text(words.question), platform::kYesNoQuestion,
                                     words.title) != platform::Answer::Yes) {
        return;
    }
    StopLinkedWork(app);
    const Text path = document::LinkedName(app, slide, words.extension);
    Text kept;
    platform::FileError error;
    if (app.platform.fileChanges.Trash(path, kept, error)) {
        ForgetFacts(app, path);
        app.windows.form3.Command19.Enabled = false;
    } else {
        app.platform.dialogs.Message(error.message, platform::kExclamation,
                                     u"音声ファイル削除エラー");
    }
}

void AttachLinkedSound(Application& app) {
    model::Form3& form3 = app.windows.form3;
    form3.Command18.Click = [&app] {
        if (const std::optional<int> row = AskForOneSlide(app, u"連動録音")) {
            RecordLinkedSound(app, app.windows.form3.List1.List(*row));
        }
    };
    form3.Command19.Click = [&app] { Command19_Click(app); };
    form3.Command20.Click = [&app] { Command20_Click(app); };
}

}  // namespace authoring

#include "authoring/linked_sound/copying.h"

#include <algorithm>
#include <vector>

#include "authoring/linked_sound/preview.h"
#include "authoring/linked_sound/target.h"
#include "authoring/shared/browser_memory.h"
#include "authoring/shared/long_work.h"
#include "authoring/shared/open_window.h"
#include "model/monitors.h"
#include "model/sound_modes.h"
#include "model/windows/linked_sound.h"
#include "sound/sound.h"
#include "text/paths.h"

namespace authoring {

namespace {

constexpr TextView kCopyError = u"コピーエラー";
constexpr int kReadableFile = 1;

struct Kind {
    TextView extension;
    TextView letters;  // of a file's name, in capitals
    model::OptionButton model::Form13::*option;
    TextView type;  // of the sound device
    bool samples;   // its time format is samples
};
constexpr Kind kKinds[] = {
    {u"mp3", u"MP3", &model::Form13::Option1, u"MPEGVideo", false},
    {u"wav", u"WAV", &model::Form13::Option2, u"waveaudio", true},
};

const Kind* KindOfFile(TextView path) {
    const Text letters = text::KindOf(path);
    const auto* found = std::find_if(std::begin(kKinds), std::end(kKinds),
                                     [&](const Kind& kind) { return kind.letters == letters; });
    return found == std::end(kKinds) ? nullptr : found;
}

const Kind& ChosenKind(model::Form13& form13) {
    return form13.Option1.Value ? kKinds[0] : kKinds[1];
}

bool Previewing(const model::Form13& form13) {
    return form13.Label3.Visible;
}

void FollowOption(Application& app) {
    model::Form13& form13 = app.windows.form13;
    form13.Text2.Content = LinkedSoundTargetAs(app, ChosenKind(form13).extension);
}

void FollowPreview(Application& app, bool plays) {
    model::Form13& form13 = app.windows.form13;
    form13.Label3.Visible = plays;
    form13.Command4.Enabled = !plays;
    form13.Command5.Enabled = plays;
}

void Form_Load(Application& app) {
    model::Form13& form13 = app.windows.form13;
    model::CentreOnMonitor(app, form13);
    form13.Text1.Content = Text();
    form13.Option1.Value = app.state.SoundMode == model::kLinkedMp3Sound;
    form13.Option2.Value = app.state.SoundMode != model::kLinkedMp3Sound;
    FollowOption(app);
    FollowPreview(app, false);
}

void Option1_Click(Application& app) {
    FollowOption(app);
    if (app.state.SoundMode != model::kLinkedMp3Sound &&
        app.platform.dialogs.Message(u"効果音設定を画像連動（MP3）再生に変更しますか？",
                                     platform::kYesNoQuestion,
                                     u"効果音設定変更") == platform::Answer::Yes) {
        sound::SetSoundMode(app, model::kLinkedMp3Sound);
    }
}

void TakeSource(Application& app, const Text& path) {
    model::Form13& form13 = app.windows.form13;
    const Kind* kind = KindOfFile(path);
    if (!kind) {
        app.platform.dialogs.Message(u"コピー元は WAV か MP3 のファイルにしてください。",
                                     platform::kExclamation, u"画像連動音声設定");
        return;
    }
    form13.Text1.Content = path;
    RememberFolder(app, text::FolderPart(path));
    model::OptionButton& option = form13.*(kind->option);
    if (!option.Value) {
        option.Press();
    }
}

/// The first sound of them.
void TakeDrop(Application& app, const std::vector<Text>& paths) {
    const auto sound = std::find_if(paths.begin(), paths.end(), KindOfFile);
    if (!paths.empty()) {
        TakeSource(app, sound == paths.end() ? paths.front() : *sound);
    }
}

void Browse_Click(Application& app) {
    platform::Dialogs::FileRequest request;
    request.title = u"コピー元の音声ファイル";
    request.filter = u"音声Files (*.wav;*.mp3)|*.wav;*.mp3|すべてのﾌｧｲﾙ(*.*)|*.*";
    request.folder = ReadBrowserMemory(app).last;
    if (const auto chosen = app.platform.dialogs.ChooseFile(request)) {
        TakeSource(app, *chosen);
    }
}

void StopPreview(Application& app) {
    app.platform.sound.MciSendString(u"stop wav");
    app.platform.sound.MciSendString(u"close wav");
    app.state.SoundPreviewStop = 1;
}

void Play(Application& app) {
    model::Form13& form13 = app.windows.form13;
    const Text path = text::Trim(form13.Text1.Content());
    if (app.platform.files.Readable(path) != kReadableFile) {
        app.platform.dialogs.Message(
            u"再生できません。音声ファイルをコピー元にドラック＆ドロップしてください。",
            platform::kPlain, u"再生エラー");
        return;
    }
    const Kind* known = KindOfFile(path);
    const Kind& kind = known ? *known : ChosenKind(form13);
    FollowPreview(app, true);
    MakeRoomForPreview(app);
    platform::Sound& device = app.platform.sound;
    device.MciSendString(u"open \"" + path + u"\" type " + Text(kind.type) + u" alias wav");
    if (kind.samples) {
        device.MciSendString(u"set wav time format samples");
    }
    device.MciSendString(u"play wav from 1");
    AwaitPreview(app);
    if (app.state.SoundPreviewStop != 1) {
        StopPreview(app);
    }
    FollowPreview(app, false);
}

void Refuse(Application& app, TextView why) {
    app.platform.dialogs.Message(why, platform::kPlain, kCopyError);
}

bool SameFolder(TextView one, TextView other) {
    return text::Upper(text::WithoutSeparator(text::FolderPart(one))) ==
           text::Upper(text::WithoutSeparator(text::FolderPart(other)));
}

/// False after a box that says why not, or a no.
bool MayCopy(Application& app, const Text& from, const Text& to) {
    if (from.empty() || to.empty()) {
        Refuse(app, u"コピーできません。音声ファイルをコピー元にドラック＆ドロップしてください。");
        return false;
    }
    if (SameFolder(from, to)) {
        Refuse(app, u"同一フォルダへはコピーできません。");
        return false;
    }
    return !app.platform.files.Exists(to) ||
           app.platform.dialogs.Message(u"このファイルはすでに存在します。\r\n上書きしますか ?",
                                        platform::kYesNoQuestion,
                                        u"コピー") == platform::Answer::Yes;
}

void Command2_Click(Application& app) {
    model::Form13& form13 = app.windows.form13;
    const Text from = text::Trim(form13.Text1.Content());
    const Text to = form13.Text2.Content();
    if (!MayCopy(app, from, to)) {
        return;
    }
    if (Previewing(form13)) {
        StopPreview(app);
    }
    form13.Command2.Enabled = false;  // handlers run while it copies
    platform::FileError error;
    platform::Outcome outcome{};
    {
        LongWork work(app, {form13, &form13.Label4});
        outcome = app.platform.fileChanges.Copy(from, to, work.Report(), error);
    }
    form13.Command2.Enabled = true;
    if (outcome == platform::Outcome::Done) {
        form13.Unload();
    } else if (outcome == platform::Outcome::Failed) {
        Refuse(app,
               u"コピーできません。\r\n画像の保存先フォルダを変更してください。\r\n"
               u"または、メニューの設定で画像連動フォルダ指定を行ってください。");
    }
}

void Command1_Click(Application& app) {
    model::Form13& form13 = app.windows.form13;
    if (form13.Text1.Content().empty() ||
        app.platform.dialogs.Message(u"連動音声をコピーせずに戻りますか？",
                                     platform::kYesNoQuestion,
                                     u"連動音声コピーキャンセル") == platform::Answer::Yes) {
        form13.Unload();
    }
}

}  // namespace

void AttachCopying(Application& app) {
    model::Form13& form13 = app.windows.form13;
    form13.OnLoad = [&app] { Form_Load(app); };
    form13.OnUnload = [&app] {
        if (Previewing(app.windows.form13)) {
            StopPreview(app);
        }
    };
    form13.Text1.FilesDropped = [&app](const std::vector<Text>& paths) { TakeDrop(app, paths); };
    form13.FilesDropped = form13.Text1.FilesDropped;
    form13.Browse.Click = [&app] { Browse_Click(app); };
    form13.Option1.Click = [&app] { Option1_Click(app); };
    form13.Option2.Click = [&app] { FollowOption(app); };
    form13.Command4.Click = [&app] { Play(app); };
    form13.Command5.Click = [&app] { StopPreview(app); };
    form13.Command2.Click = [&app] { Command2_Click(app); };
    form13.Command1.Click = [&app] { Command1_Click(app); };
}

void OpenCopying(Application& app, TextView slide) {
    TakeLinkedSoundTarget(app, slide);
    OpenModal(app, app.windows.form13);
}

}  // namespace authoring

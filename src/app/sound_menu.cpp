#include "app/sound_menu.h"

#include "authoring/settings/cd_program.h"
#include "authoring/shared/open_window.h"
#include "model/sound_modes.h"
#include "model/windows/background_sound.h"
#include "model/windows/declared_windows.h"
#include "model/windows/linked_sound.h"
#include "text/paths.h"

namespace app {

namespace {

using authoring::OpenWindow;

constexpr int16_t kTrackOrder = 0;
constexpr int16_t kProgrammeOrder = 2;
constexpr TextView kNoDefaultSound = u"*.wav";
constexpr size_t kExtensionLength = 4;  // ".wav"

struct ModeBox {
    int mode;
    int flags;
    TextView title;
    TextView text;
};

constexpr ModeBox kModeBoxes[] = {
    {model::kCommonSound, platform::kPlain, u"効果音設定",
     u"画面切換後に、共通ＷＡＶファイル（VUE1.WAV）の効果音をならします。"},
    {model::kLinkedWavSound, platform::kYesNoQuestion, u"画像連動(WAV)",
     u"画面切換後に、画像ファイルと同一名称で拡張子がＷＡＶのファイルの効果音をならします。\r\n"
     u"例)　test.jpg → test.wav を再生"},
    {model::kLinkedMidiSound, platform::kYesNoQuestion, u"画像連動(MIDI)",
     u"画面切換後に、画像ファイルと同一名称で拡張子がＭＩＤのファイルがあれば再生します。\r\n"
     u"例)　test.jpg → test.mid を再生"},
    {model::kLinkedMp3Sound, platform::kYesNoQuestion, u"画像連動(MP3)",
     u"画面切換後に、画像ファイルと同一名称で拡張子がＭＰ３のファイルがあれば再生します。\r\n"
     u"  例)　test.jpg → test.mp3 を再生\r\n(※再生中の曲は自動的にフェードアウトします｡)"},
};

bool BoxAllows(Application& app, int mode) {
    for (const ModeBox& box : kModeBoxes) {
        if (box.mode == mode) {
            return app.platform.dialogs.Message(box.text, box.flags, box.title) !=
                   platform::Answer::No;
        }
    }
    return true;
}

/// A name without folder is one of the program's own sounds: so it is played, too.
bool IsSound(Application& app, const Text& name) {
    const Text upper = text::Upper(name);
    return upper != u"*.WAV" && name.size() > kExtensionLength && upper.ends_with(u".WAV") &&
           app.platform.files.Exists(text::WithFolder(app.state.AppFolder, name));
}

/// Kept: a cancel is an empty entry, and so takes the default sound away.
void AskDefaultSound(Application& app) {
    constexpr TextView kTitle = u"ﾃﾞﾌｫﾙﾄ効果音";
    const Text entry = app.platform.dialogs
                           .Input(
                               u"デフォルトＷＡＶファイルを再生する場合は設定してください。\r\n"
                               u"（画像連動ＷＡＶファイルが見つからない場合の効果音設定）",
                               kTitle, app.state.DefaultEffectSound)
                           .value_or(Text());
    const Text name = text::WithDefaultExtension(entry, u".wav");
    if (IsSound(app, name)) {
        app.state.DefaultEffectSound = name;
        return;
    }
    app.platform.dialogs.Message(u"ﾃﾞﾌｫﾙﾄ効果音は設定されません。", platform::kPlain, kTitle);
    app.state.DefaultEffectSound = kNoDefaultSound;
}

}  // namespace

bool PrepareSoundMode(Application& app, int mode) {
    if (!BoxAllows(app, mode)) {
        return false;
    }
    if (model::RowOfSoundMode(mode).starts == model::SoundModeRow::Starts::OnAndOn) {
        app.state.SoundPaused = 0;
    }
    model::Windows& windows = app.windows;
    switch (mode) {
        case model::kLinkedWavSound:
            AskDefaultSound(app);
            break;
        case model::kWavSound:
            OpenWindow(app, windows.form2);
            break;
        case model::kMidiSound:
            OpenWindow(app, windows.form8);
            break;
        case model::kMp3Sound:
            OpenWindow(app, windows.form17);
            break;
        default:
            break;
    }
    return true;
}

void FollowSoundMode(Application& app) {
    model::Form13& form13 = app.windows.form13;
    form13.Option1.Value = app.state.SoundMode == model::kLinkedMp3Sound;
    form13.Option2.Value = app.state.SoundMode != model::kLinkedMp3Sound;
}

void FollowCdOrder(Application& app, int16_t orderBefore) {
    model::ShowState& state = app.state;
    if (state.CdOrder == kTrackOrder) {
        state.CdTrackSetting = u"1";
    }
    if (state.CdOrder == kProgrammeOrder) {
        authoring::OpenCdProgram(app);
    } else if (orderBefore == kProgrammeOrder && state.CdProgramCount > 0) {
        app.platform.dialogs.Message(u"ＣＤプログラム選択の曲順リストは消去されます。",
                                     platform::kPlain, u"曲順リスト消去");
        state.CdProgram.Erase();
        state.CdProgramCount = 0;
    }
}

}  // namespace app

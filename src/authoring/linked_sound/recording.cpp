#include "authoring/linked_sound/recording.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>

#include "authoring/linked_sound/preview.h"
#include "authoring/linked_sound/target.h"
#include "authoring/shared/open_window.h"
#include "model/monitors.h"
#include "model/windows/main_window.h"
#include "model/windows/recording.h"
#include "sound/sound.h"
#include "text/paths.h"

namespace authoring {

namespace {

constexpr TextView kTitle = u"画像連動効果音録音";
constexpr TextView kMono =
    u"channels 1 samplespersec 44100 bytespersec 88200 alignment 2 bitspersample 16";
constexpr TextView kStereo =
    u"channels 2 samplespersec 44100 bytespersec 176400 alignment 4 bitspersample 16";
constexpr int kReadableFile = 1;

bool Recording(const model::Form20& form20) {
    return form20.Label2.Visible;
}

bool CanRecord(Application& app) {
    const Text& target = app.state.LinkedSoundTarget;
    return !text::BareName(target).empty() && app.platform.fileChanges.CanWrite(target);
}

enum class Doing { Nothing, Recording, Playing };

void Follow(Application& app, Doing doing) {
    model::Form20& form20 = app.windows.form20;
    const bool idle = doing == Doing::Nothing;
    form20.Label1.Visible = idle;
    form20.Label2.Visible = doing == Doing::Recording;
    form20.Label3.Visible = doing == Doing::Playing;
    form20.Timer1.Enabled = doing == Doing::Recording;
    form20.Level.Value = 0;
    form20.Command1.Enabled = idle && CanRecord(app);
    form20.Command4.Enabled = idle && app.platform.files.Exists(app.state.LinkedSoundTarget);
    form20.Command5.Enabled = !idle;
    form20.Command3.Enabled = doing != Doing::Playing;
    for (const auto& option : form20.Option1) {
        option->Enabled = idle;
    }
    form20.EnterPresses = idle ? &form20.Command1 : &form20.Command5;
}

/// "01:05.2".
Text ElapsedText(double milliseconds) {
    const auto tenths = static_cast<int64_t>(milliseconds / 100);
    const auto twoDigits = [](int64_t number) {
        return std::string(number < 10 ? "0" : "") + std::to_string(number);
    };
    return text::FromUtf8(twoDigits(tenths / 600) + ":" + twoDigits(tenths / 10 % 60) + "." +
                          std::to_string(tenths % 10));
}

/// dB above the faintest one that the meter shows.
int LevelOf(const model::ScrollBar& meter, double peak) {
    const double decibels = peak > 0 ? 20 * std::log10(peak) : -meter.Max();
    return std::clamp(meter.Max() + static_cast<int>(std::lround(decibels)), 0, meter.Max());
}

void Form_Load(Application& app) {
    model::Form20& form20 = app.windows.form20;
    model::CentreOnMonitor(app, form20);
    form20.Text1.Content = app.state.LinkedSoundTarget;
    form20.Label4.Caption = ElapsedText(0);
    const bool can = CanRecord(app);
    form20.Label1.Caption = Text(can ? u"録音可能です。" : u"録音できません。");
    Follow(app, Doing::Nothing);
    if (!can) {
        app.platform.dialogs.Message(
            u"録音できません。\r\n画像の保存先フォルダを変更してください。\r\n"
            u"または、メニューの設定で画像連動フォルダ指定を行ってください。",
            platform::kPlain, u"連動録音不可");
    }
}

void Command1_Click(Application& app) {
    model::Form20& form20 = app.windows.form20;
    if (app.platform.files.Exists(app.state.LinkedSoundTarget) &&
        app.platform.dialogs.Message(u"画像連動効果音(WAV)を上書き録音しますか ?",
                                     platform::kYesNoQuestion, kTitle) != platform::Answer::Yes) {
        return;
    }
    platform::Sound& device = app.platform.sound;
    device.MciSendString(u"open new type waveaudio alias Rec");
    device.MciSendString(u"set Rec " + Text(form20.Option1(1).Value ? kStereo : kMono));
    device.MciSendString(u"record Rec");
    form20.Label4.Caption = ElapsedText(0);
    Follow(app, Doing::Recording);
}

void SetPointer(Application& app, model::MousePointerShape shape) {
    app.windows.SetPointer(shape);
    app.windows.form20.MousePointer = shape;
}

void StopRecording(Application& app) {
    model::Form20& form20 = app.windows.form20;
    platform::Sound& device = app.platform.sound;
    SetPointer(app, model::kPointerBusy);
    device.MciSendString(u"stop Rec");
    const Text answer = device.MciSendString(u"save Rec \"" + app.state.LinkedSoundTarget + u"\"");
    device.MciSendString(u"close Rec");
    SetPointer(app, model::kPointerNormal);
    const bool saved = answer == u"saved";
    form20.Label1.Caption = Text(saved ? u"録音しました。" : u"保存できませんでした。");
    Follow(app, Doing::Nothing);
    if (!saved) {
        app.platform.dialogs.Message(u"効果音が保存できません。", platform::kExclamation,
                                     u"効果音保存エラー");
        sound::StopSound(app);
    }
}

/// Nothing comes from the microphone any more. `heard`: something came before.
void TakeBreak(Application& app, bool heard) {
    model::Form20& form20 = app.windows.form20;
    form20.Timer1.Enabled = false;
    if (heard) {
        app.platform.dialogs.Message(u"マイクの音が途切れました。\r\nここまでの録音を保存します。",
                                     platform::kExclamation, kTitle);
        if (Recording(form20)) {
            StopRecording(app);
        }
        return;
    }
    app.platform.sound.MciSendString(u"close Rec");
    form20.Label1.Caption = u"マイクが使えません。";
    Follow(app, Doing::Nothing);
    app.platform.dialogs.Message(
        u"マイクが見つからないか、使えません。\r\nマイクをつなぎ、サウンドの設定で選んでから、もう"
        u"一度「録音」を押してください。",
        platform::kExclamation, kTitle);
}

void Timer1_Tick(Application& app, double& lastMilliseconds) {
    model::Form20& form20 = app.windows.form20;
    const auto state = app.platform.sound.Recording(u"Rec");
    if (!state) {
        TakeBreak(app, lastMilliseconds > 0);
        return;
    }
    lastMilliseconds = state->milliseconds;
    form20.Label4.Caption = ElapsedText(state->milliseconds);
    form20.Level.Value = LevelOf(form20.Level, state->peak);
}

void Play(Application& app) {
    model::Form20& form20 = app.windows.form20;
    const Text path = text::Trim(form20.Text1.Content());
    if (app.platform.files.Readable(path) != kReadableFile) {
        form20.Label1.Caption = u"再生できません。";
        return;
    }
    Follow(app, Doing::Playing);
    MakeRoomForPreview(app);
    app.state.SoundPreviewFile = path;
    app.state.SoundPreviewFlag = 1;
    sound::StartSound(app);
    AwaitPreview(app);
    if (app.state.SoundPreviewStop != 1) {
        sound::StopSound(app);
    }
    if (form20.Loaded) {
        Follow(app, Doing::Nothing);
    }
}

void Command5_Click(Application& app) {
    if (Recording(app.windows.form20)) {
        StopRecording(app);
        return;
    }
    sound::StopSound(app);
    app.state.SoundPreviewStop = 1;
}

void Form_Unload(Application& app) {
    if (app.windows.form20.Label3.Visible) {
        sound::StopSound(app);
    }
    app.platform.sound.MciSendString(u"stop Rec");
    app.platform.sound.MciSendString(u"close Rec");
    app.state.SoundPreviewFlag = 0;
    app.state.SoundPreviewFile.clear();
    app.state.SoundPreviewStop = 1;
    Follow(app, Doing::Nothing);
}

/// What was recorded would be lost. Nothing holds up the end of the program.
void Form_QueryUnload(Application& app, bool& stay) {
    stay = Recording(app.windows.form20) && !app.windows.form1.Unloading() &&
           app.platform.dialogs.Message(u"録音を保存せずに閉じますか ?", platform::kYesNoQuestion,
                                        kTitle) != platform::Answer::Yes;
}

}  // namespace

void AttachRecording(Application& app) {
    model::Form20& form20 = app.windows.form20;
    form20.OnLoad = [&app] { Form_Load(app); };
    form20.OnQueryUnload = [&app](bool& stay) { Form_QueryUnload(app, stay); };
    form20.OnUnload = [&app] { Form_Unload(app); };
    const auto milliseconds = std::make_shared<double>(0);
    form20.Command1.Click = [&app, milliseconds] {
        *milliseconds = 0;
        Command1_Click(app);
    };
    form20.Timer1.Tick = [&app, milliseconds] { Timer1_Tick(app, *milliseconds); };
    form20.Command5.Click = [&app] { Command5_Click(app); };
    form20.Command4.Click = [&app] { Play(app); };
    form20.Command3.Click = [&form20] { form20.Unload(); };
}

void OpenRecording(Application& app, TextView slide) {
    TakeLinkedSoundTarget(app, slide);
    OpenModal(app, app.windows.form20);
}

}  // namespace authoring

#include "sound/sound.h"

#include <algorithm>

#include "document/main_caption.h"
#include "document/settings_to_controls.h"
#include "model/controls.h"
#include "model/sound_modes.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"
#include "model/windows/sound_list.h"
#include "model/windows/video_window.h"
#include "sound/answer.h"
#include "sound/cd.h"
#include "text/numbers.h"

namespace sound {

namespace {

constexpr int kCancelSound = 0;

/// How a file of that kind is opened: the aliases are those that the rest of the program asks.
struct Kind {
    const char16_t* extension;
    const char16_t* type;
    const char16_t* alias;
    bool samples;  // its time format is samples
    bool volume;   // plays at the volume that macros set
};

constexpr Kind kKinds[] = {
    {u"WAV", u"waveaudio", u"wav", true, false},
    {u"MID", u"sequencer", u"mid", false, false},
    {u"MP3", u"MPEGVideo", u"mp3", false, true},
};

/// The box about a background file that cannot be read.
struct Complaint {
    int16_t mode;
    const char16_t* advice;
    const char16_t* title;
};

constexpr Complaint kComplaints[] = {
    {model::kWavSound, u"ＷＡＶ再生を確認して下さい。", u"ＷＡＶファイル読込エラー"},
    {model::kMidiSound, u"ＭＩＤＩ再生を確認して下さい。", u"ＭＩＤＩファイル読込エラー"},
    {model::kListSound, u"WAV.MIDリストを確認して下さい。", u"WAV.MIDリストファイル読込エラー"},
    {model::kMp3Sound, u"ＭＰ３再生を確認して下さい。", u"ＭＰ３ファイル読込エラー"},
};

/// The list goes round for ever.
Text NextOfList(Application& app) {
    model::ShowState& state = app.state;
    const model::Form10& form10 = app.windows.form10;
    if (form10.Check6.Value == 1 && state.SoundListStarted == 0) {
        state.SoundListPos = static_cast<int16_t>(std::max<int>(0, form10.List1.ListIndex));
        state.SoundListStarted = 1;
    }
    if (state.SoundListPos >= state.SoundListCount) {
        state.SoundListPos = 0;
    }
    state.SoundListPos = static_cast<int16_t>(state.SoundListPos + 1);
    return state.SoundList(state.SoundListPos);
}

bool OnVideo(const model::ShowState& state) {
    return text::IsVideoKind(state.SlideList(state.SlideIndex));
}

bool GivesWayToVideo(const model::ShowState& state) {
    return OnVideo(state) &&
           model::SoundModeInForce(state).besideVideo == model::SoundModeRow::BesideVideo::GivesWay;
}

Text FileOfMode(Application& app) {
    const model::ShowState& state = app.state;
    if (GivesWayToVideo(state)) {
        return state.LinkedWavPath;
    }
    switch (state.SoundMode) {
        case model::kCommonSound:
            return CommonSound(state);
        case model::kListSound:
            return NextOfList(app);
        default:
            break;
    }
    const auto piece = model::SoundModeInForce(state).piece;
    const bool cdAlone = state.SoundMode == model::kCdSound && OnVideo(state);
    return piece == nullptr || cdAlone ? Text() : state.*piece;
}

/// A second try is all that a file gets which somebody else holds.
bool CanBeRead(Application& app, const Text& path) {
    return app.platform.files.Readable(path) == 1 || app.platform.files.Readable(path) == 1;
}

void Complain(Application& app, const Text& path) {
    app.state.SoundPlaying = 0;
    for (const Complaint& one : kComplaints) {
        if (one.mode == app.state.SoundMode) {
            app.platform.dialogs.Message(path + u"\r\nファイルが読み込めません。\r\n" + one.advice,
                                         platform::kExclamation, one.title);
        }
    }
    if (app.state.SoundMode == model::kListSound) {
        app.state.SoundListNext = 1;
    }
}

/// False for a file of another kind, which opens nothing. `alias` empty: the kind's own.
bool Open(Application& app, const Text& path, const Text& alias) {
    const Text extension = text::KindOf(path);
    const auto* kind = std::find_if(std::begin(kKinds), std::end(kKinds),
                                    [&](const Kind& one) { return extension == one.extension; });
    if (kind == std::end(kKinds)) {
        return false;
    }
    const Text name = alias.empty() ? Text(kind->alias) : alias;
    platform::Sound& device = app.platform.sound;
    device.MciSendString(u"open \"" + path + u"\" type " + kind->type + u" alias " + name);
    if (kind->samples) {
        device.MciSendString(u"set " + name + u" time format samples");
    }
    device.MciSendString(u"play " + name + u" from 1");
    if (kind->volume) {
        app.state.ListMp3Playing = 1;
        device.MciSendString(u"setaudio " + name + u" volume to" +
                             text::Str(kFullVolume - app.state.Mp3VolumeOffset));
    }
    app.state.SoundOpen = 1;
    return true;
}

void ClearTelop(Application& app) {
    model::Form1& form1 = app.windows.form1;
    model::Slidescreen& screen = app.windows.slidescreen;
    for (model::Label* label : {&form1.Label1, &screen.Label1}) {
        label->Caption = Text();
        label->Visible = false;
    }
    form1.Timer4.Enabled = false;
    screen.Timer1.Enabled = false;
    app.state.TelopRunning = 0;  // or the next show would wait for a text that stands still
}

}  // namespace

Text CommonSound(const model::ShowState& state) {
    return state.AppFolder + u"vue1.wav";
}

void StartSound(Application& app) {
    model::ShowState& state = app.state;
    state.SoundPaused = 0;
    const bool preview = state.SoundPreviewFlag == 1;
    if (!preview && !model::PlaysPieces(state)) {
        return;
    }
    state.SoundListNext = 0;
    const Text path = preview ? state.SoundPreviewFile : FileOfMode(app);
    state.SoundPreviewFlag = 0;
    state.LinkedWavPath.clear();
    state.LinkedMediaPath.clear();
    const bool givesWay = !preview && GivesWayToVideo(state);
    if (givesWay) {
        state.RestartSoundFlag = 1;
    }
    // What cannot be played of the list costs one picture.
    const bool fromList =
        state.SoundMode == model::kListSound && !preview && !givesWay && state.SoundListCount > 0;
    if (path.empty() || !app.platform.files.Exists(path)) {
        state.SoundListNext = fromList ? 1 : 0;
        return;
    }
    if (!CanBeRead(app, path)) {
        Complain(app, path);
        return;
    }
    if (!preview && model::SoundModeInForce(state).linked != nullptr) {
        if (path == state.LastSoundFile) {
            return;
        }
        state.LastSoundFile = path;
    }
    state.SoundPlaying = 1;
    // Whoever previews asks "wav", whatever the mode.
    const Text alias = preview || state.SoundMode == model::kListSound ? Text(u"wav") : Text();
    if (!Open(app, path, alias) && fromList) {
        state.SoundListNext = 1;
    }
}

void StopSound(Application& app) {
    model::ShowState& state = app.state;
    if (state.SlideIndex == 0 && state.FullScreenActive != 1) {
        document::ShowDocumentCaption(app);
        ClearTelop(app);
    }
    app.platform.sound.SndPlaySound(std::nullopt, kCancelSound);
    if (state.SoundOpen == 1) {
        for (const char16_t* alias : {u"wav_ren", u"wav", u"mid", u"mp3"}) {
            app.platform.sound.MciSendString(Text(u"stop ") + alias);
            app.platform.sound.MciSendString(Text(u"close ") + alias);
        }
        state.ListMp3Playing = 0;
        state.SoundPlaying = 0;
        state.SoundPaused = 0;
        state.LastSoundFile.clear();
        state.SoundOpen = 0;
    }
    app.windows.form24.Unload();
}

void SetSoundMode(Application& app, int mode) {
    model::ShowState& state = app.state;
    if (mode == state.SoundMode || mode != model::RowOfSoundMode(mode).mode) {
        return;
    }
    StopCd(app);
    StopSound(app);
    state.SoundMode = static_cast<int16_t>(mode);
    app.windows.form1.mnuKOU.Check(mode);
    document::FollowMenuVisibility(app);
    if (mode == model::kCdSound && !Reports(app, u"status cdaudio mode", u"playing")) {
        StartCd(app, CdStart::InShow);
    }
    if (state.MacroEndShow != 1 && !model::PlaysPerPicture(state)) {
        StartSound(app);
    }
}

}  // namespace sound

#include "playback/step_sound.h"

#include "document/linked_names.h"
#include "model/sound_modes.h"
#include "model/windows/main_window.h"
#include "sound/answer.h"
#include "sound/cd.h"
#include "sound/sound.h"
#include "sound/volume.h"
#include "text/paths.h"

namespace playback {

namespace {

using BesideVideo = model::SoundModeRow::BesideVideo;

constexpr int kSyncPollMs = 10;
constexpr int kFadeStep = 20;
constexpr size_t kPlaceInSeconds = 8;  // "tt:mm:ss" of "tt:mm:ss:ff"
constexpr int kCdMovesMs = 50;         // some of the disc's frames

/// The default sound's path, empty where none is set.
Text DefaultSound(const model::ShowState& state) {
    const Text& name = state.DefaultEffectSound;
    if (text::Upper(name) == u"*.WAV" || name.size() <= 4) {
        return {};
    }
    return text::WithFolder(state.AppFolder, name);
}

bool PlayOnSecondChannel(Application& app, const Text& path) {
    if (app.platform.files.Readable(path) != 1) {
        return false;
    }
    platform::Sound& sound = app.platform.sound;
    sound.MciSendString(u"stop wav_ren");
    sound.MciSendString(u"close wav_ren");
    sound.MciSendString(u"open \"" + path + u"\" type waveaudio alias wav_ren");
    sound.MciSendString(u"set wav_ren time format samples");
    sound.MciSendString(u"play wav_ren from 1");
    return true;
}

Text LinkedToSlide(Application& app, TextView extension) {
    return document::LinkedName(app, app.state.SlideList(app.state.SlideIndex), extension);
}

void StartSecondChannel(Application& app) {
    model::ShowState& state = app.state;
    state.LinkedWavPath = LinkedToSlide(app, u"wav");
    if (PlayOnSecondChannel(app, state.LinkedWavPath) ||
        PlayOnSecondChannel(app, DefaultSound(state))) {
        state.SoundOpen = 1;
        state.SoundPlaying = 1;
    }
}

void StartMainChannel(Application& app) {
    model::ShowState& state = app.state;
    const model::SoundModeRow& mode = model::SoundModeInForce(state);
    const bool linked = mode.linked != nullptr;
    Text path = linked ? LinkedToSlide(app, mode.linked) : sound::CommonSound(state);
    if (!app.platform.files.Exists(path)) {
        // A later picture with the linked sound of before starts it again, and the default sound
        // is heard at every picture.
        state.LastSoundFile.clear();
        path = mode.takesDefault ? DefaultSound(state) : Text();
        if (path.empty() || !app.platform.files.Exists(path)) {
            return;  // what plays goes on
        }
    }
    if (linked && path == state.LastSoundFile) {
        return;  // stopping it would forget that it was played
    }
    sound::StopSound(app);
    if (linked) {
        state.*mode.piece = path;
    }
    sound::StartSound(app);
}

enum class CdSeen { Over, Moving, Stuck };

/// A disc that was in the same second at the last slide. Slides can follow each other quickly, and
/// what is heard begins late: `place` tells more than its second.
CdSeen LookAtCd(Application& app, const Text& place) {
    if (place.empty() || !sound::Reports(app, u"status cdaudio mode", u"playing")) {
        return CdSeen::Over;
    }
    app.platform.loop.Sleep(kCdMovesMs);
    return app.platform.sound.MciSendString(u"status cdaudio position") == place ? CdSeen::Stuck
                                                                                 : CdSeen::Moving;
}

}  // namespace

bool RunsForward(const Application& app) {
    return !app.windows.form1.Command1.Enabled && !model::StepOutlived(app.state);
}

bool WaitForLinkedSound(Application& app) {
    model::ShowState& state = app.state;
    if (state.SoundPlaying != 1 || state.SoundSyncFlag != 0 || state.SkipSyncWaitOnce != 0 ||
        !RunsForward(app) || !model::SoundsWithPictures(state)) {
        return true;
    }
    const WaitMark mark(state);
    const TextView question =
        model::PlaysLinkedOnTop(state) ? u"status wav_ren mode" : u"status wav mode";
    // Kept: linked MIDI and MP3 have aliases that nobody asks here, so they are not waited for.
    for (bool playing = true; playing;) {
        playing = sound::Reports(app, question, u"playing");
        app.platform.loop.PumpEvents();
        app.platform.loop.Sleep(kSyncPollMs);
        if (!RunsForward(app)) {
            return false;
        }
    }
    return true;
}

bool FadeBeforeLinkedMedia(Application& app, bool isVideo) {
    model::ShowState& state = app.state;
    if (state.SoundOpen != 1 || state.SoundPlaying != 1) {
        return true;
    }
    const bool beforeMp3 = state.SoundMode == model::kLinkedMp3Sound &&
                           app.platform.files.Exists(state.LinkedMediaPath);
    const bool beforeVideo =
        isVideo && state.SoundMode == model::kListSound && state.ListMp3Playing == 1;
    if (!beforeMp3 && !beforeVideo) {
        return true;
    }
    if (!sound::FadeOut(app, kFadeStep)) {
        return false;
    }
    if (beforeVideo) {
        state.RestartSoundFlag = 1;
    }
    return true;
}

void StartSoundBesideVideo(Application& app) {
    model::ShowState& state = app.state;
    const model::SoundModeRow& mode = model::SoundModeInForce(state);
    const bool givesWay = mode.besideVideo == BesideVideo::GivesWay;
    if (mode.besideVideo == BesideVideo::PlaysOn) {
        return;
    }
    if (givesWay && !model::PlaysLinkedOnTop(state)) {
        state.RestartSoundFlag = 1;
        return;
    }
    const Text path = LinkedToSlide(app, givesWay ? u"wav" : mode.linked);
    state.*(givesWay ? &model::ShowState::LinkedWavPath : mode.piece) = path;
    if (app.platform.files.Exists(path)) {
        sound::StopSound(app);
        sound::StartSound(app);
    }
}

void PollCd(Application& app) {
    model::ShowState& state = app.state;
    if (state.SoundMode != model::kCdSound) {
        return;
    }
    if (state.CdPaused == 0 && RunsForward(app)) {
        const Text place = app.platform.sound.MciSendString(u"status cdaudio position");
        const Text seconds = text::Left(place, kPlaceInSeconds);
        auto why = sound::CdStart::TrackEnded;
        if (seconds == state.LastCdTrackText) {
            const CdSeen seen = LookAtCd(app, place);
            if (seen != CdSeen::Moving) {
                app.platform.sound.MciSendString(u"stop cdaudio");
            }
            if (seen == CdSeen::Stuck) {
                why = sound::CdStart::TrackStuck;
            }
        }
        state.LastCdTrackText = seconds;
        if (sound::Reports(app, u"status cdaudio mode", u"stopped")) {
            sound::StartCd(app, why);
            state.RestartSoundFlag = 0;
        }
    }
    if (state.SlideIndex == 1 && state.RestartSoundFlag == 1 && state.CdPaused == 0) {
        state.RestartSoundFlag = 0;
    }
}

void RestartBackgroundSound(Application& app) {
    model::ShowState& state = app.state;
    const model::SoundModeRow& mode = model::SoundModeInForce(state);
    const bool background = mode.starts == model::SoundModeRow::Starts::OnAndOn;
    const bool wanted =
        state.SoundPlaying == 1 || state.RestartSoundFlag == 1 || state.RestartSoundMacro == 1;
    // The second channel's sound must not hide that an entry of the list could not be played.
    const bool nextOfList = mode.mode == model::kListSound && state.SoundListNext == 1;
    if (background && wanted && state.SoundPaused == 0) {
        state.SoundListNext = 0;
        if (RunsForward(app)) {
            const Text question = Text(u"status ") + mode.alias + u" mode";
            // Kept: the first letter is not compared.
            const bool ended =
                text::Mid(app.platform.sound.MciSendString(question), 2, 6) == u"topped";
            if (ended || nextOfList || state.RestartSoundFlag == 1 ||
                state.RestartSoundMacro == 1) {
                sound::StopSound(app);
                sound::StartSound(app);
                state.RestartSoundFlag = 0;
                state.RestartSoundMacro = 0;
                return;  // one try a picture: a list of missing files is not run through at once
            }
        }
    }
    if (mode.mode == model::kListSound && state.SoundListNext == 1) {
        sound::StopSound(app);
        sound::StartSound(app);
    }
}

void StartLinkedSounds(Application& app) {
    if (model::PlaysLinkedOnTop(app.state)) {
        StartSecondChannel(app);
    }
    if (model::PlaysPerPicture(app.state)) {
        StartMainChannel(app);
    }
}

void SkipFirstSyncWait(Application& app) {
    const model::ShowState& state = app.state;
    // A macro that ended the last step kept its linked sound back.
    if (state.MacroEndShow != 1 || !model::PlaysPerPicture(state)) {
        app.state.SkipSyncWaitOnce = 1;
    }
}

void StartShowSound(Application& app, bool byPerson) {
    sound::StartCd(app, byPerson ? sound::CdStart::ByPerson : sound::CdStart::InShow);
    if (!model::PlaysPerPicture(app.state)) {
        sound::StartSound(app);
    }
}

}  // namespace playback

#include "playback/step_sound.h"

#include "document/linked_names.h"
#include "model/windows/main_window.h"
#include "sound/sound.h"
#include "sound/volume.h"
#include "text/paths.h"

namespace playback {

namespace {

constexpr int kSyncPollMs = 10;
constexpr int kFadeStep = 20;

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
    Text path;
    switch (state.SoundMode) {
        case 5:
            path = LinkedToSlide(app, u"mid");
            break;
        case 9:
            path = LinkedToSlide(app, u"mp3");
            break;
        case 0:
            path = state.AppFolder + u"vue1.wav";
            break;
        default:
            path = LinkedToSlide(app, u"wav");
            break;
    }
    if (!app.platform.files.Exists(path)) {
        // A later picture with the linked sound of before starts it again, and the default sound
        // is heard at every picture.
        state.LastSoundFile.clear();
        const bool takesDefault = state.SoundMode == 1 || state.SoundMode == 2;
        path = takesDefault ? DefaultSound(state) : Text();
        if (path.empty() || !app.platform.files.Exists(path)) {
            return;  // what plays goes on
        }
    }
    if (state.SoundMode != 0 && path == state.LastSoundFile) {
        return;  // stopping it would forget that it was played
    }
    sound::StopSound(app);
    const bool media = state.SoundMode == 5 || state.SoundMode == 9;
    (media ? state.LinkedMediaPath : state.LinkedWavPath) = path;
    sound::StartSound(app);
}

}  // namespace

bool RunsForward(const Application& app) {
    return !app.windows.form1.Command1.Enabled && !model::StepOutlived(app.state);
}

bool PlaysSecondChannel(const model::ShowState& state) {
    return (state.SoundMode == 4 && state.MidiLinkedWavFlag == 1) ||
           (state.SoundMode == 8 && state.Mp3LinkedWavFlag == 1) ||
           (state.SoundMode == 6 && state.SoundListCheck5 == 1);
}

bool WaitForLinkedSound(Application& app) {
    model::ShowState& state = app.state;
    const bool modeWaits =
        sound::PlaysPerPicture(state) || state.SoundMode == 6 || PlaysSecondChannel(state);
    if (state.SoundPlaying != 1 || state.SoundSyncFlag != 0 || state.SkipSyncWaitOnce != 0 ||
        !RunsForward(app) || !modeWaits) {
        return true;
    }
    const WaitMark mark(state);
    // Kept: linked MIDI and MP3 have aliases that nobody asks here, so they are not waited for.
    for (bool playing = true; playing;) {
        playing = sound::Reports(
            app, PlaysSecondChannel(state) ? u"status wav_ren mode" : u"status wav mode",
            u"playing");
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
    const bool beforeMp3 = state.SoundMode == 9 && app.platform.files.Exists(state.LinkedMediaPath);
    const bool beforeVideo = isVideo && state.SoundMode == 6 && state.ListMp3Playing == 1;
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
    const bool wav = state.SoundMode == 1 || (state.SoundMode == 6 && state.SoundListCheck5 == 1) ||
                     (state.SoundMode == 8 && state.Mp3LinkedWavFlag == 1);
    if (wav || state.SoundMode == 9) {
        const Text path = LinkedToSlide(app, wav ? u"wav" : u"mp3");
        (wav ? state.LinkedWavPath : state.LinkedMediaPath) = path;
        if (app.platform.files.Exists(path)) {
            sound::StopSound(app);
            sound::StartSound(app);
        }
    } else if (state.SoundMode == 6 || state.SoundMode == 8) {
        state.RestartSoundFlag = 1;
    }
}

void PollCd(Application& app) {
    model::ShowState& state = app.state;
    if (state.SoundMode != 2) {
        return;
    }
    if (state.CdPaused == 0 && RunsForward(app)) {
        const Text position =
            text::Left(app.platform.sound.MciSendString(u"status cdaudio position"), 8);
        if (position == state.LastCdTrackText) {
            app.platform.sound.MciSendString(u"stop cdaudio");
        }
        state.LastCdTrackText = position;
        if (sound::Reports(app, u"status cdaudio mode", u"stopped")) {
            sound::StartCd(app);
            state.RestartSoundFlag = 0;
        }
    }
    if (state.SlideIndex == 1 && state.RestartSoundFlag == 1 && state.CdPaused == 0) {
        state.RestartSoundFlag = 0;
    }
}

void RestartBackgroundSound(Application& app) {
    model::ShowState& state = app.state;
    const int16_t mode = state.SoundMode;
    const bool background = mode == 3 || mode == 4 || mode == 6 || mode == 8;
    const bool wanted =
        state.SoundPlaying == 1 || state.RestartSoundFlag == 1 || state.RestartSoundMacro == 1;
    // The second channel's sound must not hide that an entry of the list could not be played.
    const bool nextOfList = mode == 6 && state.SoundListNext == 1;
    if (background && wanted && state.SoundPaused == 0) {
        state.SoundListNext = 0;
        if (RunsForward(app)) {
            const TextView question = mode == 4   ? u"status mid mode"
                                      : mode == 8 ? u"status mp3 mode"
                                                  : u"status wav mode";
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
    if (mode == 6 && state.SoundListNext == 1) {
        sound::StopSound(app);
        sound::StartSound(app);
    }
}

void StartLinkedSounds(Application& app) {
    if (PlaysSecondChannel(app.state)) {
        StartSecondChannel(app);
    }
    if (sound::PlaysPerPicture(app.state)) {
        StartMainChannel(app);
    }
}

void SkipFirstSyncWait(Application& app) {
    const model::ShowState& state = app.state;
    // A macro that ended the last step kept its linked sound back.
    if (state.MacroEndShow != 1 || !sound::PlaysPerPicture(state)) {
        app.state.SkipSyncWaitOnce = 1;
    }
}

void StartShowSound(Application& app) {
    sound::StartCd(app);
    if (!sound::PlaysPerPicture(app.state)) {
        sound::StartSound(app);
    }
}

}  // namespace playback

#include "sound/cd.h"

#include <algorithm>
#include <cmath>

#include "model/sound_modes.h"
#include "sound/answer.h"
#include "sound/cd_order.h"
#include "text/numbers.h"

namespace sound {

namespace {

constexpr int kFewestTracks = 2;  // one with fewer is taken for no audio disc
constexpr int kMostTracks = 99;

Text Number(int number) {
    return text::Trim(text::Str(number));
}

/// A text as a track's number; below 1 for what is none.
int TrackNumber(const Text& entry) {
    return static_cast<int>(
        std::clamp(std::trunc(text::SafeNumber(entry)), 0.0, kMostTracks + 1.0));
}

/// 0 for a disc that cannot be played.
int TracksOnDisc(Application& app) {
    const int tracks =
        TrackNumber(app.platform.sound.MciSendString(u"status cdaudio number of tracks"));
    return tracks < kFewestTracks ? 0 : tracks;
}

void Say(Application& app, TextView words) {
    app.platform.dialogs.Message(words, platform::kExclamation, u"ＣＤ再生");
}

constexpr TextView kNotReady = u"ＣＤが準備できていません。";

void CloseDrive(Application& app) {
    app.platform.sound.MciSendString(u"stop cdaudio");
    app.platform.sound.MciSendString(u"close cdaudio");
}

void Refuse(Application& app, CdStart why, TextView words) {
    model::ShowState& state = app.state;
    const bool polled = why == CdStart::TrackEnded || why == CdStart::TrackStuck;
    const bool saidBefore = polled && state.CdPlaying == 0;
    const bool quiet = why != CdStart::ByPerson && (saidBefore || state.FullScreenActive == 1);
    state.CdPlaying = 0;
    if (!quiet) {
        Say(app, words);
    }
}

CdMoment MomentOf(const model::ShowState& state, CdStart why, bool wasPaused) {
    if (why == CdStart::TrackStuck) {
        return CdMoment::Again;
    }
    if (why == CdStart::TrackEnded) {
        return CdMoment::Ended;
    }
    return wasPaused && TrackNumber(state.CdPausedTrack) > 0 ? CdMoment::Resume : CdMoment::Begin;
}

CdTurn NextTurn(Application& app, CdMoment moment, int tracks) {
    const model::ShowState& state = app.state;
    CdSituation now{.order = static_cast<CdOrder>(state.CdOrder),
                    .moment = moment,
                    .tracks = tracks,
                    .repeatsTrack = state.CdRepeatFlag == 0,
                    .beginning = std::max(1, TrackNumber(state.CdTrackSetting)),
                    .paused = TrackNumber(state.CdPausedTrack),
                    .last = state.CdPlaying,
                    .position = state.CdProgramPosition,
                    .stopsAtEnd = state.CdProgramStop == 1,
                    .inChain = state.LinkRunning == 1};
    if (now.order == CdOrder::Random && moment != CdMoment::Again) {
        now.draw = app.platform.loop.Rnd();
    }
    for (int i = 1; i <= state.CdProgramCount; ++i) {
        now.program.push_back(TrackNumber(state.CdProgram(i)));
    }
    return NextCdTurn(now);
}

/// One track, so that the disc stops after it and the slide step sees that.
void Play(Application& app, int track, int tracks) {
    Text command = u"play cdaudio from " + Number(track);
    if (track < tracks) {
        command += u" to " + Number(track + 1);
    }
    app.platform.sound.MciSendString(command);
    app.state.CdPlaying = static_cast<int16_t>(track);
    app.state.LastCdTrackText.clear();  // of another play: no sign of standing still
}

}  // namespace

void StartCd(Application& app, CdStart why) {
    model::ShowState& state = app.state;
    if (state.SoundMode != model::kCdSound) {
        return;
    }
    const bool wasPaused = state.CdPaused == 1;
    state.CdPaused = 0;
    platform::Sound& device = app.platform.sound;
    device.MciSendString(u"open cdaudio");
    const bool ready = Reports(app, u"status cdaudio ready", u"true");
    const int tracks = ready ? TracksOnDisc(app) : 0;
    if (state.StopRequest == 1 || state.SoundMode != model::kCdSound) {
        return;  // it ended while the drive was waited for
    }
    if (tracks == 0) {
        Refuse(app, why, kNotReady);
        return;
    }
    if (TrackNumber(state.CdTrackSetting) > tracks) {
        Refuse(app, why, u"ＣＤトラック設定が不適切です。");
        return;
    }
    if (static_cast<CdOrder>(state.CdOrder) == CdOrder::Program && state.CdProgramCount == 0) {
        return;
    }
    device.MciSendString(u"set cdaudio time format tmsf");
    const CdMoment moment = MomentOf(state, why, wasPaused);
    const CdTurn turn = NextTurn(app, moment, tracks);
    state.CdProgramPosition = static_cast<int16_t>(turn.position);
    if (turn.endsShow) {
        state.ShowAbort = 1;
        state.CdStopPending = 1;
    }
    if (moment == CdMoment::Resume) {
        state.CdPausedTrack = Number(turn.track);
    }
    if (turn.track > 0) {
        Play(app, turn.track, tracks);
    }
}

void StopCd(Application& app) {
    model::ShowState& state = app.state;
    if (state.SoundMode == model::kCdSound) {
        CloseDrive(app);
    }
    state.CdPaused = 0;
    state.CdPlaying = 0;
    state.CdStopPending = 0;
}

void LeaveCd(Application& app) {
    model::ShowState& state = app.state;
    if (state.CdPlaying > 0) {
        CloseDrive(app);
    }
    state.CdPaused = 0;
    state.CdPlaying = 0;
    state.CdProgramPosition = 0;
}

DiscContents LookAtDisc(Application& app, bool withLengths) {
    platform::Sound& device = app.platform.sound;
    app.windows.SetPointer(model::kPointerBusy);
    device.MciSendString(u"open cdaudio");
    DiscContents disc{.tracks = TracksOnDisc(app), .lengths = {}};
    for (int track = 1; withLengths && track <= disc.tracks; ++track) {
        disc.lengths.push_back(
            device.MciSendString(u"status cdaudio length track " + Number(track)));
    }
    if (app.state.CdPlaying == 0) {
        device.MciSendString(u"close cdaudio");
    }
    app.windows.SetPointer(model::kPointerNormal);
    return disc;
}

void SayNoDisc(Application& app) {
    Say(app, kNotReady);
}

}  // namespace sound

#include "macro/sound_words.h"

#include <algorithm>

#include "macro/arguments.h"
#include "macro/cutouts.h"
#include "macro/named_files.h"
#include "model/windows/main_window.h"
#include "picture/video_window.h"
#include "sound/sound.h"
#include "sound/volume.h"
#include "text/numbers.h"

namespace macro {

namespace {

constexpr int kVolumeStep = 100;  // of 1000

/// sndPlaySound's flags for n = 0, 1, 2: play and go on, wait, repeat; none with a default sound.
constexpr int kWaveFlags[] = {3, 2, 11};

constexpr double kSteepestFade = 1e9;  // of 1000

struct FileCall {
    Text file;
    int mode = 0;  // -1: none of 0, 1, 2
};

/// The first quoted text, and the number between the comma after it and the last ')'.
FileCall ReadFileCall(TextView upperLine) {
    const TextView line = BeforeComment(upperLine);
    FileCall call{Text(Quoted(line))};
    const size_t first = line.find(u'"');
    const size_t last = first == TextView::npos ? first : line.find(u'"', first + 1);
    const size_t comma = line.find(u',', last == TextView::npos ? 0 : last);
    if (comma != TextView::npos) {
        const TextView rest = line.substr(comma + 1);
        const double number = text::SafeNumber(rest.substr(0, rest.rfind(u')')));
        call.mode = number == 0 || number == 1 || number == 2 ? static_cast<int>(number) : -1;
    }
    return call;
}

Flow ChangeVolume(Run& run, int offset) {
    model::ShowState& state = run.state;
    state.Mp3VolumeOffset = static_cast<int16_t>(std::clamp(offset, 0, sound::kFullVolume));
    sound::SendVolume(run.app, sound::kFullVolume - state.Mp3VolumeOffset);
    return Flow::GoOn;
}

int FadeStep(double seconds) {
    return seconds <= 0 ? sound::kFullVolume
                        : static_cast<int>(std::min(text::Int(100 / seconds + 0.5), kSteepestFade));
}

}  // namespace

Flow ShowMovie(Run& run, double) {
    const FileCall call = ReadFileCall(run.MacroLineUpper);
    picture::ShowMacroMovie(
        run.app, NamedVideo(run.app.platform.files, SlideFolder(run.app), call.file), call.mode);
    return Flow::GoOn;
}

Flow PlayWave(Run& run, double) {
    const FileCall call = ReadFileCall(run.MacroLineUpper);
    if (call.mode >= 0) {
        run.app.platform.sound.SndPlaySound(
            NamedFile(run.app.platform.files, SlideFolder(run.app), call.file),
            kWaveFlags[call.mode]);
    }
    return Flow::GoOn;
}

Flow StopWave(Run& run, double) {
    run.app.platform.sound.SndPlaySound(std::nullopt, 0);
    return Flow::GoOn;
}

Flow SetVolume(Run& run, double percent) {
    return ChangeVolume(run,
                        sound::kFullVolume - static_cast<int>(text::RoundHalfEven(10 * percent)));
}

Flow LowerVolume(Run& run, double) {
    return ChangeVolume(run, run.state.Mp3VolumeOffset + kVolumeStep);
}

Flow RaiseVolume(Run& run, double) {
    return ChangeVolume(run, run.state.Mp3VolumeOffset - kVolumeStep);
}

Flow FadeOut(Run& run, double seconds) {
    model::ShowState& state = run.state;
    if (!sound::FadeOut(run.app, FadeStep(seconds))) {
        return Flow::Stop;
    }
    state.SoundVolumeRestart = 1;
    state.RestartSoundMacro = 1;
    return Flow::GoOn;
}

Flow SwitchSoundMode(Run& run, double mode) {
    sound::SetSoundMode(run.app, static_cast<int>(text::RoundHalfEven(mode)));
    return Flow::GoOn;
}

Flow SetSoundSync(Run& run, double mode) {
    if (mode == 0 || mode == 1) {
        run.state.SoundSyncFlag = mode == 0 ? 1 : 0;
        run.app.windows.form1.mnuDOU.Check(run.state.SoundSyncFlag);
    }
    return Flow::GoOn;
}

}  // namespace macro

#include "playback/slide_step.h"

#include <algorithm>

#include "document/linked_names.h"
#include "document/main_caption.h"
#include "macro/macro.h"
#include "macro/telop.h"
#include "model/picture_controls.h"
#include "model/windows/control_box.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_screen.h"
#include "picture/effect_context.h"
#include "picture/effects.h"
#include "picture/load.h"
#include "picture/overlay.h"
#include "picture/screen.h"
#include "picture/video_window.h"
#include "playback/prepare.h"
#include "playback/run.h"
#include "playback/schedule.h"
#include "playback/step_sound.h"
#include "text/numbers.h"
#include "text/paths.h"

namespace playback {

namespace {

/// A step can begin within one whose show has ended.
class StepMark {
public:
    explicit StepMark(model::ShowState& state) : state_(state), outer_(state.StepPhase) {
        state_.StepPhase = 1;
    }
    ~StepMark() { state_.StepPhase = outer_; }
    StepMark(const StepMark&) = delete;
    StepMark& operator=(const StepMark&) = delete;

private:
    model::ShowState& state_;
    int16_t outer_;
};

constexpr int kSkippedTickMs = 1;
constexpr int kMissingVideoTickMs = 1;
constexpr int kAfterVideoTickMs = 100;
constexpr int kTelopPollMs = 10;
constexpr int16_t kEffectSpeedTrimInStep = 4;

void SkipBySchedule(Application& app) {
    app.windows.form1.Timer1.Interval = kSkippedTickMs;
    app.state.ScheduleSkipped = 1;
    app.state.StepBusy = 0;  // a video before it left it set
    app.platform.trace.Event("skip", {{"SlideIndex", double(app.state.SlideIndex)}});
}

/// In a running show the next slide never comes before a scrolling text has run out, unless a jump
/// was chosen. False when the show was paused or ended meanwhile.
bool WaitForTelop(Application& app) {
    model::ShowState& state = app.state;
    if (state.TelopRunning != 1) {
        return true;
    }
    if (state.MacroJumpChosen == 1 || !RunsForward(app)) {
        macro::CancelTelop(app);
        return true;
    }
    const WaitMark mark(state);
    app.windows.SetPointer(model::kPointerNormal);  // START's would keep PAUSE out
    while (state.TelopRunning == 1) {
        app.platform.loop.PumpEvents();
        app.platform.loop.Sleep(kTelopPollMs);
        if (model::StepOutlived(state)) {
            return false;
        }
        if (!RunsForward(app)) {
            app.windows.form1.Timer4.Enabled = false;
            state.TelopRunning = 0;
            return false;
        }
    }
    return true;
}

/// Nothing prevents the same slide twice in a row.
void DrawRandomSlide(Application& app) {
    model::ShowState& state = app.state;
    if (state.LinkRunning == 1 || state.RandomFlag != 0 || !RunsForward(app)) {
        return;
    }
    const int count = state.SlideList.Count();
    const double place = text::RoundHalfEven(app.platform.loop.Rnd() * count + 0.5);
    // A draw next to 1 can round up beyond a list of odd length.
    state.SlideIndex = static_cast<int16_t>(std::clamp(place, 1.0, std::max(1.0, double(count))));
}

void EndVideoByUser(Application& app) {
    if (app.state.FullScreenActive == 1) {
        CloseFullScreen(app);
    } else {
        app.state.ShowAbort = 1;
    }
}

void ShowVideo(Application& app) {
    model::ShowState& state = app.state;
    model::Windows& windows = app.windows;
    const Text path = state.SlideList(state.SlideIndex);
    picture::RunEraseEffect(app);
    if (!app.platform.files.Exists(path)) {
        app.platform.dialogs.Message(path + u"\r\n動画ファイルの再生が停止されました。",
                                     platform::kExclamation, u"動画ファイル再生停止");
        windows.form1.Timer1.Interval = kMissingVideoTickMs;
        return;
    }
    state.CurrentName = text::BareName(path);
    document::ShowSlideCaption(app);
    windows.form1.ShownSlide = state.SlideIndex;
    StartSoundBesideVideo(app);
    PrepareAround(app, state.SlideIndex);
    picture::PlayVideo(app, path);
    if (model::StepOutlived(state)) {
        return;
    }
    state.LastWasVideo = 1;
    if (state.VideoStoppedByUser == 1 && state.MacroWaitClick != 1) {
        EndVideoByUser(app);
    }
    windows.SetPointer(model::kPointerNormal);
    windows.form1.Timer1.Interval = kAfterVideoTickMs;
}

/// Takes the previous slide's text off the layered canvas, brings the picture in.
void ShowInFullScreen(Application& app) {
    model::ShowState& state = app.state;
    model::Slidescreen& slidescreen = app.windows.slidescreen;
    if (state.OverlayMode > 0 && state.TextOriginScreen == 1 && state.TextMacroFlag == 0) {
        slidescreen.P2.canvas.StretchBlt(
            {0, 0, slidescreen.P2.ScaleWidth(), slidescreen.P2.ScaleHeight()},
            slidescreen.P4.canvas.Pixels());
    }
    if (state.ControlBoxFlag == 0) {
        app.windows.slidescreen2.Show();
    }
    picture::ReleaseEffectContext(app);
    picture::CreateEffectContext(app);
    picture::RunShowEffect(app);
}

}  // namespace

void CopyCanvasForMacros(Application& app) {
    model::Slidescreen& slidescreen = app.windows.slidescreen;
    if (app.state.FullScreenActive != 1 || app.state.TextMacroFlag != 0) {
        return;
    }
    const bool scrolling = slidescreen.Timer1.Enabled;
    if (scrolling) {
        slidescreen.Label1.Visible = false;
        app.platform.loop.PumpEvents();
        if (app.state.FullScreenActive != 1) {
            return;
        }
    }
    slidescreen.P4.canvas.StretchBlt(
        {0, 0, slidescreen.P4.ScaleWidth(), slidescreen.P4.ScaleHeight()},
        slidescreen.P2.canvas.Pixels());
    // The text may have run out in the pump.
    if (scrolling && slidescreen.Timer1.Enabled) {
        slidescreen.Label1.Visible = true;
    }
}

namespace {

void TraceSlide(Application& app) {
    const model::ShowState& state = app.state;
    const model::PictureBox& picture = app.windows.form4.Picture1;
    const bool fullScreen = state.FullScreenActive == 1;
    app.platform.trace.Event("slide", {{"SlideIndex", double(state.SlideIndex)},
                                       {"path", state.CurrentPath},
                                       {"x", double(fullScreen ? state.PictureX : 0)},
                                       {"y", double(fullScreen ? state.PictureY : 0)},
                                       {"width", double(picture.ScaleWidth())},
                                       {"height", double(picture.ScaleHeight())}});
}

void ShowPicture(Application& app) {
    model::ShowState& state = app.state;
    PollCd(app);
    if (model::StepOutlived(state) || state.StopRequest == 1 || state.ShowAbort == 1) {
        return;  // no picture comes up to go at once
    }
    // The load mode is only carried: every step puts it back before the load.
    state.LoadMode = 0;
    app.windows.form1.mnuYOMI.Check(0);
    const bool loaded = picture::LoadSlidePicture(app);
    // Not earlier: after a video the load erases nothing.
    state.LastWasVideo = 0;
    if (!loaded) {
        picture::HandleLoadFailure(app);
        return;
    }
    RestartBackgroundSound(app);
    if (state.FullScreenActive == 1) {
        ShowInFullScreen(app);
    }
    if (model::StepOutlived(state)) {
        return;
    }
    state.ResetScreenOnce = 0;
    app.windows.SetPointer(model::kPointerNormal);
    state.MacroEndShow = 0;
    app.windows.form1.ShownSlide = state.SlideIndex;
    TraceSlide(app);
    PrepareAround(app, state.SlideIndex);
    CopyCanvasForMacros(app);
    if (state.LinkedSoundPosition == 1) {
        macro::RunTextMacro(app);
    }
    if (model::StepOutlived(state) || state.StopRequest == 1 || state.MacroEndShow == 1) {
        return;
    }
    StartLinkedSounds(app);
    if (state.LinkedSoundPosition == 0) {
        macro::RunTextMacro(app);
    }
    // A macro may have set another size, or jumped.
    PrepareAround(app, state.SlideIndex);
}

void TakeEffectSpeed(model::ShowState& state) {
    // Kept: the user's correction lives only until the next step, the factor is always 2.
    state.EffectSpeedTrim = kEffectSpeedTrimInStep;
    state.EffectSpeedFactor = text::Int((3 - state.EffectSpeedTrim / 4.0) * 10) / 10;
}

/// True for a film, which leaves StepBusy at 1 until the next step ends: this holds back PAUSE for
/// the short tick.
bool ShowEntry(Application& app) {
    model::ShowState& state = app.state;
    macro::ClearMacroObjects(app);
    state.StepBusy = 1;
    state.ResumeIndex = state.SlideIndex;
    if (state.StopRequest == 1) {
        return false;
    }
    state.ShowAbort = 0;
    // A full screen that was closed before this step is no reason for its waits to give up.
    state.FullScreenClosed = 0;
    TakeEffectSpeed(state);
    if (!WaitForLinkedSound(app)) {
        return false;
    }
    state.SkipSyncWaitOnce = 0;
    if (!WaitForTelop(app)) {
        return false;
    }
    DrawRandomSlide(app);
    const Text path = state.SlideList(state.SlideIndex);
    if (path.empty()) {
        return false;
    }
    const bool isVideo = text::IsVideoKind(path);
    state.LinkedMediaPath = document::LinkedName(app, path, u"mp3");
    if (!FadeBeforeLinkedMedia(app, isVideo)) {
        return false;
    }
    if (isVideo) {
        ShowVideo(app);
    } else {
        ShowPicture(app);
    }
    return isVideo;
}

}  // namespace

Outcome RunSlideStep(Application& app) {
    model::ShowState& state = app.state;
    const StepMark mark(state);
    const bool ran = state.ShowRunning == 1;
    if (state.ShowDateText.empty() || state.SlideIndex == 1) {
        TakeShowDate(app);
    }
    if (IsOutOfSchedule(state, state.SlideIndex)) {
        SkipBySchedule(app);
        return Outcome::Skipped;
    }
    const bool film = ShowEntry(app);
    if (model::StepOutlived(state)) {
        return Outcome::Over;
    }
    if (!film) {
        state.StepBusy = 0;
    }
    if (state.StopRequest == 1) {
        return Outcome::Stopped;
    }
    if (state.ShowAbort == 1) {
        return Outcome::Aborted;
    }
    return ran && state.ShowRunning == 0 ? Outcome::Paused : Outcome::Done;
}

}  // namespace playback

#include "playback/prepare.h"

#include <algorithm>

#include "picture/load.h"
#include "playback/schedule.h"
#include "text/paths.h"

namespace playback {

namespace {

/// Slides that are looked at in search of a picture: each one passed over takes a tick of the
/// timer, so one farther off has time enough.
constexpr int kReach = 100;

/// What a pass through the list compares schedules with.
struct Moment {
    Text date;
    platform::DateTime time;
};

/// Path of the first picture from slide `from` on in the direction `by` (1 or -1) that would be
/// shown at the moment; empty where none is in reach.
Text PictureFrom(const model::ShowState& state, int from, int by, const Moment& moment) {
    for (int i = 0; i < kReach && from >= 1 && from < state.SlideListEnd; ++i, from += by) {
        const Text& path = state.SlideList(from);
        if (path.empty()) {
            break;
        }
        if (!text::IsVideoKind(path) && !IsOutOfSchedule(state, from, moment.date, moment.time)) {
            return text::WithFolder(state.AppFolder, path);
        }
    }
    return {};
}

/// A pass that begins now.
Moment NewPass(Application& app) {
    const platform::DateTime now = app.platform.loop.Now();
    return {platform::DateText(now), now};
}

bool InRandomOrder(const model::ShowState& state) {
    return state.RandomFlag == 0 && state.LinkRunning != 1;
}

/// Slide at which a show that stands still would start.
int StartIndex(const model::ShowState& state) {
    const int resumed = state.StartOption == 1 ? std::max<int>(0, state.ResumeIndex) + 1 : 1;
    return state.SlideList(resumed).empty() ? 1 : resumed;
}

}  // namespace

void PrepareAround(Application& app, int shown) {
    const model::ShowState& state = app.state;
    if (state.StopRequest == 1 || InRandomOrder(state)) {
        ForgetPrepared(app);
        return;
    }
    const Moment thisPass{state.ShowDateText, state.ShowDateTime};
    Text next = PictureFrom(state, shown + 1, 1, thisPass);
    if (next.empty() && state.RepeatFlag == 0 && state.LinkRunning != 1) {
        next = PictureFrom(state, 1, 1, NewPass(app));
    }
    const Text previous =
        state.ShowRunning == 0 ? PictureFrom(state, shown - 1, -1, thisPass) : Text();
    const platform::FitFunction fit = picture::FitForLoad(app, state.FullScreenActive == 1);
    std::vector<platform::Wanted> wanted;
    for (const Text& path : {next, previous}) {
        if (!path.empty()) {
            wanted.push_back({path, fit});
        }
    }
    app.platform.imaging.Prepare(wanted);
}

void PrepareStart(Application& app, bool fullScreen) {
    const model::ShowState& state = app.state;
    const Text path = state.LinkRunning == 1 || InRandomOrder(state)
                          ? Text()
                          : PictureFrom(state, StartIndex(state), 1, NewPass(app));
    if (path.empty()) {
        ForgetPrepared(app);
        return;
    }
    const bool toScreen = fullScreen || state.AlwaysFullFlag == 0;
    app.platform.imaging.Prepare({{path, picture::FitForLoad(app, toScreen)}});
}

void ForgetPrepared(Application& app) {
    app.platform.imaging.Prepare({});
}

}  // namespace playback

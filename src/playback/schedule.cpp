#include "playback/schedule.h"

namespace playback {

namespace {

constexpr size_t kDateColumns = 10;

/// Moment that a schedule field means; a time alone lies on the day of the show.
bool ReadField(const Text& field, const Text& showDate, platform::DateTime& moment) {
    const Text trimmed = text::Trim(field);
    if (trimmed.empty()) {
        return false;
    }
    const bool timeOnly = text::Trim(text::Left(field, kDateColumns)).empty();
    return platform::ReadDateTime(timeOnly ? showDate + u" " + trimmed : trimmed, moment);
}

}  // namespace

void TakeShowDate(Application& app) {
    app.state.ShowDateTime = app.platform.loop.Now();
    app.state.ShowDateText = platform::DateText(app.state.ShowDateTime);
}

bool IsOutOfSchedule(const model::ShowState& state, int slideIndex) {
    platform::DateTime moment;
    if (ReadField(state.ScheduleFrom(slideIndex), state.ShowDateText, moment) &&
        moment > state.ShowDateTime) {
        return true;
    }
    return ReadField(state.ScheduleTo(slideIndex), state.ShowDateText, moment) &&
           moment < state.ShowDateTime;
}

}  // namespace playback

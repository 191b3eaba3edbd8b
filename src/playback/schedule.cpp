#include "playback/schedule.h"

namespace playback {

namespace {

constexpr size_t kDateColumns = 10;

/// Moment that a schedule field means; a time alone lies on the day given.
bool ReadField(const Text& field, const Text& date, platform::DateTime& moment) {
    const Text trimmed = text::Trim(field);
    if (trimmed.empty()) {
        return false;
    }
    const bool timeOnly = text::Trim(text::Left(field, kDateColumns)).empty();
    return platform::ReadDateTime(timeOnly ? date + u" " + trimmed : trimmed, moment);
}

}  // namespace

void TakeShowDate(Application& app) {
    app.state.ShowDateTime = app.platform.loop.Now();
    app.state.ShowDateText = platform::DateText(app.state.ShowDateTime);
}

bool IsOutOfSchedule(const model::ShowState& state, int slideIndex, const Text& date,
                     platform::DateTime moment) {
    platform::DateTime end;
    return (ReadField(state.ScheduleFrom(slideIndex), date, end) && end > moment) ||
           (ReadField(state.ScheduleTo(slideIndex), date, end) && end < moment);
}

bool IsOutOfSchedule(const model::ShowState& state, int slideIndex) {
    return IsOutOfSchedule(state, slideIndex, state.ShowDateText, state.ShowDateTime);
}

}  // namespace playback

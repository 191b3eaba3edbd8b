// When a slide may be shown.
#pragma once

#include "model/application.h"

namespace playback {

/// Takes the show's date and time (ShowDateText, ShowDateTime) from the clock.
void TakeShowDate(Application& app);

/// True when `moment` lies outside the slide's start and end; the ends count as inside. A field
/// that is no date counts as none, a time alone lies on the day `date` ("YYYY/MM/DD").
bool IsOutOfSchedule(const model::ShowState& state, int slideIndex, const Text& date,
                     platform::DateTime moment);
/// The same at the show's moment.
bool IsOutOfSchedule(const model::ShowState& state, int slideIndex);

}  // namespace playback

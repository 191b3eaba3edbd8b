#include "document/show_schedule.h"

namespace document {

void RebuildSchedule(Application& app) {
    auto& state = app.state;
    state.ScheduleFrom.Erase();
    state.ScheduleTo.Erase();
    int index = 1;
    for (const Text& row : app.windows.form3.List2.Rows()) {
        state.ScheduleFrom.Set(index, model::ScheduleFromOfRow(row));
        state.ScheduleTo.Set(index, model::ScheduleToOfRow(row));
        ++index;
    }
}

}  // namespace document

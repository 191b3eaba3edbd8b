// The schedule arrays, which mirror the rows of Form3's List2.
#pragma once

#include "model/application.h"

namespace document {

/// ScheduleFrom and ScheduleTo anew, one entry for each row.
void RebuildSchedule(Application& app);

}  // namespace document

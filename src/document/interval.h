// The slide interval as show documents and the state file hold it: in milliseconds.
#pragma once

#include <cstdint>

#include "model/application.h"

namespace document {

/// What is kept of the interval of a file: at least 1000 ms.
int32_t KeptInterval(int32_t milliseconds);

/// Takes the interval of a file, at least 1000 ms: sets SlideIntervalSec (whole seconds) and the
/// timer's interval.
void TakeInterval(Application& app, int32_t milliseconds);

/// SlideIntervalSec in milliseconds, as it goes into a file.
double IntervalMs(const model::ShowState& state);

}  // namespace document

// What the sound device answers.
#pragma once

#include "model/application.h"

namespace sound {

/// True when the device's answer to the question begins with `answer`.
bool Reports(Application& app, TextView question, TextView answer);

}  // namespace sound

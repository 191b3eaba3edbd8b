// What choosing an entry of a radio menu brings with it, beside the setting itself.
#pragma once

#include <vector>

#include "model/application.h"

namespace app {

/// A setting that gets a value of its own when another one was chosen.
struct ForcedSetting {
    int16_t model::ShowState::*field;
    int16_t value;
};

/// One entry that does more than set its field. `note` is shown after the check was moved; empty:
/// none.
struct RadioChoice {
    int16_t model::ShowState::*field;
    int16_t value;
    std::vector<ForcedSetting> forced;
    TextView title;
    TextView note;
};
const std::vector<RadioChoice>& RadioChoices();

}  // namespace app

#pragma once

#include <cstdint>

namespace model {

/// Speed that both effects get when it is fixed, and have at the start.
constexpr int16_t kFixedEffectSpeed = -30;

}  // namespace model

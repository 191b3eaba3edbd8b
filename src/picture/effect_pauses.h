// How long effects pause. Speeds were made as counts of turns of a loop that does nothing; a turn
// stands for a fixed time here, so that an effect takes as long on every machine.
#pragma once

#include "picture/effect_settings.h"

namespace picture {

constexpr double kMillisecondsPerTurn = 0.0025;

/// Weight that marks the mosaic, whose pauses follow a formula of their own.
constexpr int kMosaicWeight = 0;

/// Pauses of one effect.
struct EffectPauses {
    int weight;  // turns = share × (7 - speed) × weight × speed factor
    float share;
    int fixedMs;  // in fixed mode
};

/// Milliseconds of so many turns; a part of a turn does not count, nor does less than one.
double TurnsToMilliseconds(double turns);

/// Milliseconds of one pause. Never negative; at the slowest speeds of a mosaic longer than
/// anybody waits.
double PauseOf(const EffectPauses& pauses, const EffectSettings& settings);

}  // namespace picture

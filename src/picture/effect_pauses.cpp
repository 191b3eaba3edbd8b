#include "picture/effect_pauses.h"

#include <cmath>

#include "text/numbers.h"

namespace picture {

namespace {

constexpr int kFullSpeed = 7;  // from here on nothing but the mosaic pauses

double MosaicTurns(const EffectSettings& settings) {
    // In single precision, as far as it goes: at the slowest speed it just holds the number.
    const float slowness = std::pow(1.08F, static_cast<float>(10 - settings.speed));
    const float share = std::pow(static_cast<float>(settings.blocks), 2.1F);
    return double{7000 * slowness / share} - 150.0 * settings.mosaicDelay;
}

}  // namespace

double TurnsToMilliseconds(double turns) {
    return turns < 1 ? 0 : text::Int(turns) * kMillisecondsPerTurn;
}

double PauseOf(const EffectPauses& pauses, const EffectSettings& settings) {
    if (settings.fixedSpeed) {
        return pauses.fixedMs;
    }
    if (pauses.weight == kMosaicWeight) {
        return TurnsToMilliseconds(MosaicTurns(settings));
    }
    const auto product = static_cast<float>((kFullSpeed - settings.speed) * pauses.weight);
    return TurnsToMilliseconds(pauses.share * product * static_cast<float>(settings.speedFactor));
}

}  // namespace picture

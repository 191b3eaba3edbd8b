// The order in which an effect treats the parts of a picture, and its pauses: worked out before the
// effect begins, so that its length is known and nothing but the clock decides while it runs.
#pragma once

#include <functional>
#include <vector>

#include "picture/effect_settings.h"
#include "platform/canvas.h"
#include "platform/imaging.h"

namespace picture {

/// Effects 0 to 8: from the top, bottom, left, right, centre, outside; horizontal slits, vertical
/// slits, mosaic.
constexpr int kEffectCount = 9;

/// A canvas of so many lines has pauses of full length; on a taller one they are shorter, so that
/// an effect takes no longer.
constexpr int kFullPauseLines = 1080;

/// One rectangle that is copied or blackened.
struct EffectBand {
    platform::Rect area;    // pixels, from the picture's corner; may lie beyond its edges
    double before = 0;      // ms of pause before it
    double after = 0;       // ms of pause after it
    bool stopsHere = true;  // false within a group that is drawn as a whole, even after a stop
};

struct EffectPlan {
    std::vector<EffectBand> bands;
    bool wholeAtEnd = false;  // the whole picture follows, also after a stop

    /// Sum of all pauses: the effect's nominal length in ms.
    double Length() const;
};

/// Plan of effect `number` for a picture of that size (pixels). Empty for a number that is no
/// effect and for an empty picture. `erasing` turns the order of slits around. Only the mosaic
/// draws random numbers (0 <= r < 1): two a block, column first. Counts and speeds beyond what
/// the dialogs allow, which a document may hold, are taken as the nearest that can be drawn.
/// `canvas` is the canvas in pixels of the picture: its height says how long pauses are, and bands
/// that lie wholly off it cost none.
EffectPlan PlanEffect(int number, const EffectSettings& settings, bool erasing,
                      platform::Size picture, const platform::Rect& canvas,
                      const std::function<double()>& random);

}  // namespace picture

#include "macro/motion.h"

namespace macro {

Flow MoveCutout(Run&, double) {
    return Flow::GoOn;
}

Flow SetMotionBounds(Run& run, double mode) {
    if (mode >= -1 && mode <= 1) {
        run.state.OverPicMode = static_cast<int16_t>(mode);
    }
    return Flow::GoOn;
}

}  // namespace macro

#include "macro/text_drawing.h"

namespace macro {

Flow DrawTextLine(Run&) {
    return Flow::GoOn;
}

Flow DrawGradText(Run&, double) {
    return Flow::GoOn;
}

Flow DrawRotatedText(Run&, double) {
    return Flow::GoOn;
}

Flow StartTelop(Run&, double) {
    return Flow::GoOn;
}

}  // namespace macro

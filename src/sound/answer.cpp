#include "sound/answer.h"

namespace sound {

bool Reports(Application& app, TextView question, TextView answer) {
    return app.platform.sound.MciSendString(question).starts_with(answer);
}

}  // namespace sound

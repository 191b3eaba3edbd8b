#include "sound/sound.h"

namespace sound {

void StartSound(Application&) {}
void StopSound(Application&) {}
void StartCd(Application&) {}
void StopCd(Application&) {}

}  // namespace sound

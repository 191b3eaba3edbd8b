#include "picture/video_window.h"

namespace picture {

void PlayVideo(Application&, TextView) {}

}  // namespace picture

#include "authoring/slide_list/window.h"

namespace authoring {

void AttachSlideList(model::Application&) {}

}  // namespace authoring

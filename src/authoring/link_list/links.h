// Form9 as one of the windows in which a person builds a list.
#pragma once

#include "authoring/shared/list_window.h"

namespace authoring {

ListWindow Links(Application& app);

}  // namespace authoring

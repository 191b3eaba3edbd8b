// Form9: builds the list of shows that run as a chain.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachLinkList(Application& app);

}  // namespace authoring

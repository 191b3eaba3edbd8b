// Taking over the link window's list for a run.
#pragma once

#include "model/application.h"

namespace app {

/// LinkList and LinkEnd from the rows of Form9's List1; LinkRunning becomes 1 unless the list is
/// empty.
void TakeLinkList(Application& application);

}  // namespace app

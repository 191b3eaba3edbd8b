// Which system calls the decoder's process can make.
#pragma once

#include "adapters/sandbox/message.h"

namespace confine {

/// For all threads and all that they start, for good: what is not on the role's list fails with
/// EPERM. False when the system refuses.
bool ConfineSystemCalls(sandbox::Role role);

}  // namespace confine

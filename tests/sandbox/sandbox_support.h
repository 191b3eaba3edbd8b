// Files and processes of the tests of the sandbox.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "adapters/posix/descriptor.h"

namespace sandbox {
using posix_adapter::Descriptor;
}

/// An open file that holds this.
sandbox::Descriptor FileOf(const std::string& content);

int OpenDescriptors();

/// The processes that this one started and that stand, zombies too.
std::vector<pid_t> Children();

/// Ended, or about to: waits for the system, never for long. Nobody may be there to wait for
/// orphans, so that zombies count as ended.
bool IsGone(pid_t process);
/// The same for all of a group.
bool GroupIsGone(pid_t group);

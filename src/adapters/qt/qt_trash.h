// The desktop's trash.
#pragma once

#include <string>

namespace qt_adapter {

/// Puts a file into the trash of its own disk, with a note of where it came from, so that file
/// managers can bring it back. 0 and where it lies in `kept`; ENOTSUP where the disk has no trash.
int MoveToTrash(const std::string& nativePath, std::string& kept);

}  // namespace qt_adapter

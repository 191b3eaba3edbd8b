// The desktop's trash, laid out as freedesktop.org has it (Trash 1.0).
#pragma once

#include <string>

namespace posix_adapter {

/// Puts a plain file or a link into the trash of its disk: that of the home folder
/// ($XDG_DATA_HOME/Trash), else the disk's own (.Trash/UID where the administrator made one, else
/// .Trash-UID). What is missing of it is made. `kept` gets the full path under which the file lies
/// there. 0, or errno; ENOTSUP where the disk has no trash and none can be made.
int MoveToDesktopTrash(const std::string& nativePath, std::string& kept);

}  // namespace posix_adapter

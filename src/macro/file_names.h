// The files that a macro names, for whoever copies or checks them.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/files.h"
#include "text/text.h"

namespace macro {

struct FileName {
    size_t at = 0, length = 0;  // where the name stands in the source
    Text path;                  // the file that it stands for, as the player finds it
    bool needed = true;         // false: it may well be none
};

/// In the order in which they stand. `slideFolder` with its separator; `documentFolder` is where
/// programs without a folder are looked for.
std::vector<FileName> FilesNamed(platform::Files& files, TextView slideFolder,
                                 TextView documentFolder, TextView source);

}  // namespace macro

// Which files the decoder's process can open.
#pragma once

#include "adapters/sandbox/message.h"

namespace confine {

/// For this thread and all that it starts, for good. Raster: no file. Eps: Ghostscript and what is
/// installed with it, for reading. Svg: libraries and fonts, for reading. Needs no_new_privs. True
/// as well where the kernel has no such rules; false when it has them and refuses.
bool ConfineFiles(sandbox::Role role);

}  // namespace confine

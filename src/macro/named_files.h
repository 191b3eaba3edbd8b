// Which file a word's name stands for.
#pragma once

#include "platform/files.h"
#include "text/text.h"

namespace macro {

/// Path of a file that a word names. A relative name, with a folder of its own or without, is the
/// file beside the slide where that one exists. Otherwise a name without a folder gets the slide's,
/// and any other is taken as it stands.
Text NamedFile(platform::Files& files, TextView slideFolder, TextView name);

/// The same for a video, whose name is always taken as it stands where nothing lies beside the
/// slide.
Text NamedVideo(platform::Files& files, TextView slideFolder, TextView name);

}  // namespace macro

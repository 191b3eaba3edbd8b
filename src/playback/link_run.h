// From show to show: the run over a link list.
#pragma once

#include "model/application.h"

namespace playback {

/// Reads the document LinkList(LinkIndex), rebuilds the slide list, moves LinkIndex on. False when
/// the document was refused: the full screen is unloaded then.
bool LoadLinkEntry(Application& app);

/// At the end of a document's slides: goes on with the next one. False when there is none.
bool ContinueLinkRun(Application& app);

}  // namespace playback

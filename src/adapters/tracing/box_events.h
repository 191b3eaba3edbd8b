// Trace lines of boxes: message, input, dialog.
#pragma once

#include <optional>
#include <vector>

#include "platform/dialogs.h"
#include "platform/trace.h"

namespace tracing {

/// `unanswered`: no answer was queued, the box answered itself.
void TraceMessage(platform::Trace& trace, TextView text, int flags, TextView title,
                  platform::Answer answer, bool unanswered);
void TraceInput(platform::Trace& trace, TextView prompt, TextView title, TextView initial,
                const std::optional<Text>& answer, bool unanswered);
void TraceFileDialog(platform::Trace& trace, const platform::Dialogs::FileRequest& request,
                     const std::optional<Text>& path, bool unanswered);
/// Of a dialog that takes several: "paths" in place of "path", empty on cancel.
void TraceFilesDialog(platform::Trace& trace, const platform::Dialogs::FileRequest& request,
                      const std::vector<Text>& paths, bool unanswered);

}  // namespace tracing

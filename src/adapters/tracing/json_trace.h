// The trace as JSON Lines.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/trace.h"

namespace tracing {

/// Trace that writes one JSON object a line to the file (replaced) or, for "-", to standard output:
/// "t" first, as `milliseconds` answers it, then "event", then the fields as given. Each line is
/// passed on at once. Nullptr when the file cannot be opened; later failures are passed over.
std::unique_ptr<platform::Trace> MakeTraceWriter(const std::string& nativePath,
                                                 std::function<double()> milliseconds);

}  // namespace tracing

// A process of the sandbox: one request after the other, within limits.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "adapters/sandbox/message.h"
#include "adapters/sandbox/picture.h"

namespace confine {

/// What a process does in one role. What the functions throw is a picture that failed.
struct Service {
    sandbox::Role role = sandbox::Role::Raster;
    /// Does before the limits hold what they would forbid. May be empty.
    std::function<void()> warmUp;
    /// `wanted` is empty for the picture's own size.
    std::function<std::optional<sandbox::Picture>(sandbox::Kind, std::span<const uint8_t> file,
                                                  platform::Size wanted)>
        decode;
    /// A drawing's own size, however large. Empty where that takes drawing it.
    std::function<std::optional<platform::Size>(sandbox::Kind, std::span<const uint8_t> file)>
        measure;
    /// Whether a program that `decode` started still runs. May be empty where it starts none.
    std::function<bool()> helperLives;
};

/// Answers on the socket until the program closes its end: 0, the exit status. Also ends after an
/// answer once a helper goes on or much memory did not come back: takes no more requests from
/// before that answer on, and ends its whole group where there is a helper. Another status for a
/// message that is none, or when no answer can be sent.
int Serve(int socket, const Service& service);

/// The whole of such a process: the service whose role the command line names warms up, is limited
/// and serves. Ends the process.
[[noreturn]] void RunService(int argc, char** argv, const std::vector<Service>& services);

}  // namespace confine

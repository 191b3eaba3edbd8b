// The decoder's process behind the door: one request after the other.
#pragma once

#include <functional>

#include "adapters/decoder/decode.h"
#include "adapters/door/message.h"

namespace decoder {

using DecodeFunction = std::function<std::optional<Picture>(
    door::Kind, std::span<const uint8_t> file, platform::Size wanted)>;

/// Answers until the program closes its end: 0, the exit status. Another one for a message that is
/// none, or when no answer can be sent. What `decode` throws is a picture that failed.
int Serve(int socket, door::Role role, const DecodeFunction& decode);

}  // namespace decoder

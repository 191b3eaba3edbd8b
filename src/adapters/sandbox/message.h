// What program and decoder's process say to each other over a socket of whole messages: one request
// with the open file, one answer with the pixels in memory of their own. Neither side trusts the
// other: what is not exactly as described here is no message.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "adapters/posix/descriptor.h"
#include "adapters/sandbox/kind.h"
#include "platform/imaging.h"

namespace sandbox {

using posix_adapter::Descriptor;

/// Most pixels that a picture may have, as 32-bit pixels: 1 GiB.
constexpr int64_t kMostPixelBytes = int64_t{1} << 30;
constexpr int64_t kMostPixels = kMostPixelBytes / 4;

/// Each has a process of its own, named by its first argument.
enum class Role { Raster, Eps, Svg };
constexpr int kRoles = 3;
constexpr const char* kRoleNames[kRoles] = {"raster", "eps", "svg"};
/// Drawings need fonts or a helper, so their processes are limited less.
constexpr Role RoleOf(Kind kind) {
    return kind == Kind::Eps ? Role::Eps : kind == Kind::Svg ? Role::Svg : Role::Raster;
}

/// The mark holds the version: another version's message is none.
constexpr uint32_t kRequestMark = 0x31715044;  // "DPq1"
constexpr uint32_t kAnswerMark = 0x31615044;   // "DPa1"

/// Comes with one descriptor: the file, open for reading.
struct Request {
    uint32_t mark = kRequestMark;
    uint32_t serial = 0;  // the answer repeats it
    uint32_t task = 0;
    uint32_t kind = 0;
    int32_t width = 0, height = 0;  // pixels wanted of a drawing; both 0 for its own size
};
/// Request::task. Measuring wants no size; only drawings are measured.
constexpr uint32_t kDecode = 1, kMeasure = 2;

/// Comes with one descriptor, the pixels, when the picture was decoded; else with none. What is not
/// known is 0.
struct Answer {
    uint32_t mark = kAnswerMark;
    uint32_t serial = 0;
    uint32_t what = 0;
    uint32_t bitsPerPixel = 0;
    int32_t width = 0, height = 0;  // pixels
};

/// Answer::what. Measured is a size, however large.
constexpr uint32_t kFailed = 0, kDecoded = 1, kMeasured = 2;

/// Whether a picture of this size fits the bound.
bool FitsBound(platform::Size size);

/// The message if every field is in range and exactly the descriptors came that belong to it.
std::optional<Request> ParseRequest(std::span<const uint8_t> bytes, size_t descriptors);
/// The same for what answers this request; a failure answers every one.
std::optional<Answer> ParseAnswer(std::span<const uint8_t> bytes, size_t descriptors,
                                  const Request& request);

/// One message as it came.
struct Received {
    enum class State { Message, Gone, Nothing } state = State::Nothing;
    std::array<uint8_t, 64> bytes{};
    size_t size = 0;  // 0 for a message that did not fit
    std::vector<Descriptor> descriptors;
    std::span<const uint8_t> Bytes() const { return {bytes.data(), size}; }
};

/// Waits for one message and takes it, with all descriptors that came, closed on exec. Gone: the
/// other side closed, or the socket fails. Nothing: none came within `milliseconds` (-1: waits for
/// ever).
Received Receive(int socket, int milliseconds);

/// Sends one message with one descriptor, or none for -1, without waiting. False when the other
/// side is gone or does not take it. Raises no signal.
bool Send(int socket, std::span<const uint8_t> bytes, int descriptor);

template <typename Message>
std::span<const uint8_t> BytesOf(const Message& message) {
    return {reinterpret_cast<const uint8_t*>(&message), sizeof message};
}

}  // namespace sandbox

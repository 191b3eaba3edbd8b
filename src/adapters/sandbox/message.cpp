#include "adapters/sandbox/message.h"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>

namespace sandbox {

namespace {

// What travels has no gaps, so that nothing of the sender's memory goes along.
static_assert(sizeof(Request) == 6 * 4 && sizeof(Answer) == 6 * 4);

constexpr uint32_t kDepths[] = {1, 4, 8, 16, 24, 32, 48, 64};

/// Room for more than ever belongs to a message: superfluous ones are taken, to be closed.
constexpr size_t kDescriptorRoom = 16;

template <typename Message>
std::optional<Message> Copied(std::span<const uint8_t> bytes) {
    if (bytes.size() != sizeof(Message)) {
        return std::nullopt;
    }
    Message message;
    std::memcpy(&message, bytes.data(), sizeof message);
    return message;
}

/// False when nothing came in time. Errors count as something: the reading that follows fails.
bool Wait(int socket, int milliseconds) {
    if (socket < 0) {
        return true;
    }
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
    while (true) {
        int left = -1;
        if (milliseconds >= 0) {
            const auto rest = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
            left = static_cast<int>(std::max<int64_t>(rest.count(), 0));
        }
        pollfd waited{socket, POLLIN, 0};
        const int ready = poll(&waited, 1, left);
        if (ready != -1 || errno != EINTR) {
            return ready != 0;
        }
    }
}

std::vector<Descriptor> DescriptorsOf(msghdr& header) {
    std::vector<Descriptor> result;
    for (cmsghdr* part = CMSG_FIRSTHDR(&header); part != nullptr;
         part = CMSG_NXTHDR(&header, part)) {
        if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SCM_RIGHTS) {
            continue;
        }
        const size_t count = (part->cmsg_len - CMSG_LEN(0)) / sizeof(int);
        for (size_t i = 0; i < count; ++i) {
            int descriptor = -1;
            std::memcpy(&descriptor, CMSG_DATA(part) + i * sizeof(int), sizeof descriptor);
            result.emplace_back(descriptor);
        }
    }
    return result;
}

}  // namespace

bool FitsBound(platform::Size size) {
    return !size.Empty() && int64_t{size.width} * size.height <= kMostPixels;
}

std::optional<Request> ParseRequest(std::span<const uint8_t> bytes, size_t descriptors) {
    const auto request = Copied<Request>(bytes);
    if (!request || request->mark != kRequestMark || descriptors != 1) {
        return std::nullopt;
    }
    const bool known = request->kind != 0 && request->kind <= kLastKind;
    const bool drawing = known && RoleOf(static_cast<Kind>(request->kind)) != Role::Raster;
    const bool ownSize = request->width == 0 && request->height == 0;
    const bool decode = request->task == kDecode && known &&
                        (ownSize || FitsBound({request->width, request->height}));
    const bool measure = request->task == kMeasure && drawing && ownSize;
    return decode || measure ? request : std::nullopt;
}

std::optional<Answer> ParseAnswer(std::span<const uint8_t> bytes, size_t descriptors,
                                  const Request& request) {
    const auto answer = Copied<Answer>(bytes);
    if (!answer || answer->mark != kAnswerMark || answer->serial != request.serial) {
        return std::nullopt;
    }
    const platform::Size size{answer->width, answer->height};
    const bool depthKnown = std::ranges::find(kDepths, answer->bitsPerPixel) != std::end(kDepths);
    bool right = false;
    switch (answer->what) {
        case kFailed:
            right = descriptors == 0 && answer->bitsPerPixel == 0 && size == platform::Size();
            break;
        case kDecoded:
            right = request.task == kDecode && descriptors == 1 && depthKnown && FitsBound(size);
            break;
        case kMeasured:
            right = request.task == kMeasure && descriptors == 0 && answer->bitsPerPixel == 0 &&
                    !size.Empty();
            break;
        default:
            break;
    }
    return right ? answer : std::nullopt;
}

Received Receive(int socket, int milliseconds) {
    Received result;
    if (!Wait(socket, milliseconds)) {
        return result;
    }
    alignas(cmsghdr) std::array<uint8_t, CMSG_SPACE(kDescriptorRoom * sizeof(int))> control{};
    iovec part{result.bytes.data(), result.bytes.size()};
    msghdr header{};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    header.msg_control = control.data();
    header.msg_controllen = control.size();
    ssize_t size = -1;
    do {
        size = recvmsg(socket, &header, MSG_DONTWAIT | MSG_CMSG_CLOEXEC);
    } while (size == -1 && errno == EINTR);
    if (size > 0) {
        result.descriptors = DescriptorsOf(header);
        const bool cut = (header.msg_flags & (MSG_TRUNC | MSG_CTRUNC)) != 0;
        result.size = cut ? 0 : static_cast<size_t>(size);
        result.state = Received::State::Message;
    } else {
        // An empty message is taken for the end as well: none is ever sent.
        result.state = Received::State::Gone;
        result.descriptors = size == 0 ? DescriptorsOf(header) : std::vector<Descriptor>();
    }
    return result;
}

bool Send(int socket, std::span<const uint8_t> bytes, int descriptor) {
    alignas(cmsghdr) std::array<uint8_t, CMSG_SPACE(sizeof(int))> control{};
    iovec part{const_cast<uint8_t*>(bytes.data()), bytes.size()};
    msghdr header{};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    if (descriptor >= 0) {
        header.msg_control = control.data();
        header.msg_controllen = control.size();
        cmsghdr* rights = CMSG_FIRSTHDR(&header);
        rights->cmsg_level = SOL_SOCKET;
        rights->cmsg_type = SCM_RIGHTS;
        rights->cmsg_len = CMSG_LEN(sizeof(int));
        std::memcpy(CMSG_DATA(rights), &descriptor, sizeof descriptor);
    }
    ssize_t sent = -1;
    do {
        sent = sendmsg(socket, &header, MSG_NOSIGNAL | MSG_DONTWAIT);
    } while (sent == -1 && errno == EINTR);
    return sent == static_cast<ssize_t>(bytes.size());
}

}  // namespace sandbox

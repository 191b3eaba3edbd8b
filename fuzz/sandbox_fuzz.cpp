// Any bytes, with any number of descriptors of any length, as a message to either side of the
// sandbox: never a crash, what is taken is in range, and no descriptor stays open.
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <cstring>

#include "adapters/sandbox/message.h"
#include "adapters/sandbox/transfer.h"

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// What the input says before the message itself.
struct Head {
    uint8_t descriptors = 0;  // as they are sent, up to kMostSent
    uint8_t kind = 0;         // of what the descriptors are
    uint16_t kilobytes = 0;   // length of the memory that they stand for
    uint8_t remainder = 0;    // and bytes beyond
    uint8_t asked = 0;        // what the answer is to answer
};
constexpr size_t kMostSent = 24;

sandbox::Descriptor MakeDescriptor(const Head& head) {
    constexpr uint8_t kPipe = 1, kDevice = 2;
    if (head.kind == kPipe) {
        int ends[2];
        Require(pipe2(ends, O_CLOEXEC) == 0);
        close(ends[1]);
        return sandbox::Descriptor(ends[0]);
    }
    if (head.kind == kDevice) {
        return sandbox::Descriptor(open("/dev/zero", O_RDONLY | O_CLOEXEC));
    }
    sandbox::Descriptor memory(memfd_create("fuzz", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    Require(ftruncate(memory.Get(), (head.kilobytes % 4096) * 1024 + head.remainder) == 0);
    return memory;
}

void SendRaw(int socket, const uint8_t* data, size_t size, int descriptor, size_t count) {
    alignas(cmsghdr) std::array<uint8_t, CMSG_SPACE(kMostSent * sizeof(int))> control{};
    iovec part{const_cast<uint8_t*>(data), size};
    msghdr header{};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    if (count != 0) {
        header.msg_control = control.data();
        header.msg_controllen = CMSG_SPACE(count * sizeof(int));
        cmsghdr* rights = CMSG_FIRSTHDR(&header);
        rights->cmsg_level = SOL_SOCKET;
        rights->cmsg_type = SCM_RIGHTS;
        rights->cmsg_len = CMSG_LEN(count * sizeof(int));
        for (size_t i = 0; i < count; ++i) {
            std::memcpy(CMSG_DATA(rights) + i * sizeof(int), &descriptor, sizeof descriptor);
        }
    }
    sendmsg(socket, &header, MSG_NOSIGNAL | MSG_DONTWAIT);
}

/// The decoder's side.
void TakeRequest(const sandbox::Received& received) {
    const auto request = sandbox::ParseRequest(received.Bytes(), received.descriptors.size());
    if (!request) {
        return;
    }
    Require(request->kind >= 1 && request->kind <= sandbox::kLastKind);
    Require(received.descriptors.size() == 1);
    const auto file = sandbox::ReadFile(received.descriptors[0].Get());
    Require(!file || (!file->empty() && file->size() <= sandbox::kMostFileBytes));
}

/// The program's side.
void TakeAnswer(const sandbox::Received& received, uint8_t asked) {
    sandbox::Request request;
    request.task = asked % 2 == 0 ? sandbox::kDecode : sandbox::kMeasure;
    request.kind = asked;
    const auto answer =
        sandbox::ParseAnswer(received.Bytes(), received.descriptors.size(), request);
    if (!answer || answer->what != sandbox::kDecoded) {
        Require(!answer || answer->what == sandbox::kFailed || asked % 2 == 1);
        return;
    }
    const platform::Size size{answer->width, answer->height};
    Require(sandbox::FitsBound(size));
    const auto bitmap = sandbox::ReadPixels(received.descriptors[0].Get(), size);
    Require(!bitmap || (bitmap->width == size.width && bitmap->pixels[0] >> 24 == 0xFF));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Head head;
    if (size < sizeof head) {
        return 0;
    }
    std::memcpy(&head, data, sizeof head);
    data += sizeof head;
    size -= sizeof head;
    const int before = dup(STDIN_FILENO);
    close(before);
    {
        int ends[2];
        Require(socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) == 0);
        const sandbox::Descriptor here(ends[0]), there(ends[1]);
        const sandbox::Descriptor sent = MakeDescriptor(head);
        SendRaw(here.Get(), data, size, sent.Get(), head.descriptors % (kMostSent + 1));
        const sandbox::Received received = sandbox::Receive(there.Get(), 0);
        TakeRequest(received);
        TakeAnswer(received, head.asked);
    }
    // The lowest free number is the one it was.
    const int after = dup(STDIN_FILENO);
    close(after);
    Require(before == after);
    return 0;
}

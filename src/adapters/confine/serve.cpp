#include "adapters/confine/serve.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <exception>
#include <string_view>

#include "adapters/confine/limits.h"
#include "adapters/sandbox/process.h"
#include "adapters/sandbox/transfer.h"

namespace confine {

using sandbox::Answer;
using sandbox::Descriptor;
using sandbox::Request;

namespace {

/// What the program would not believe is not sent.
bool Sound(const sandbox::Picture& picture) {
    return sandbox::FitsBound(picture.size) &&
           picture.pixels.size() ==
               static_cast<size_t>(picture.size.width) * static_cast<size_t>(picture.size.height);
}

void Measure(const Request& request, std::span<const uint8_t> file, const Service& service,
             Answer& answer) {
    const auto size = service.measure
                          ? service.measure(static_cast<sandbox::Kind>(request.kind), file)
                          : std::nullopt;
    if (size && !size->Empty()) {
        answer.what = sandbox::kMeasured;
        answer.width = size->width;
        answer.height = size->height;
    }
}

Descriptor Decode(const Request& request, std::span<const uint8_t> file, const Service& service,
                  Answer& answer) {
    const auto picture = service.decode(static_cast<sandbox::Kind>(request.kind), file,
                                        {request.width, request.height});
    Descriptor pixels;
    if (picture && Sound(*picture)) {
        pixels = sandbox::MakePixels(picture->pixels);
    }
    if (pixels.Valid()) {
        answer.what = sandbox::kDecoded;
        answer.bitsPerPixel = static_cast<uint32_t>(picture->bitsPerPixel);
        answer.width = picture->size.width;
        answer.height = picture->size.height;
    }
    return pixels;
}

Descriptor AnswerOne(const Request& request, int file, const Service& service, Answer& answer) {
    answer.serial = request.serial;
    Descriptor pixels;
    try {
        if (const auto bytes = sandbox::ReadFile(file)) {
            if (request.task == sandbox::kMeasure) {
                Measure(request, *bytes, service, answer);
            } else {
                pixels = Decode(request, *bytes, service, answer);
            }
        }
    } catch (const std::exception&) {
        answer = Answer();
        answer.serial = request.serial;
    }
    return pixels;
}

}  // namespace

int Serve(int socket, const Service& service) {
    constexpr int kForever = -1;
    const MemoryUse atFirst = UsedMemory();
    while (true) {
        const sandbox::Received received = sandbox::Receive(socket, kForever);
        if (received.state == sandbox::Received::State::Gone) {
            return 0;
        }
        const auto request = sandbox::ParseRequest(received.Bytes(), received.descriptors.size());
        if (!request ||
            sandbox::RoleOf(static_cast<sandbox::Kind>(request->kind)) != service.role) {
            return 1;
        }
        AllowProcessorTime(kPictureSeconds);
        Answer answer;
        const Descriptor pixels =
            AnswerOne(*request, received.descriptors[0].Get(), service, answer);
        const bool helperLives = service.helperLives && service.helperLives();
        const bool last = helperLives || HasGrown(atFirst, UsedMemory());
        if (last) {
            // Before the answer: a request that came after it would be lost with the process.
            shutdown(socket, SHUT_RD);
        }
        if (!sandbox::Send(socket, sandbox::BytesOf(answer), pixels.Get())) {
            return 1;
        }
        if (helperLives) {
            EndGroup();
        }
        if (last) {
            return 0;
        }
    }
}

void RunService(int argc, char** argv, const std::vector<Service>& services) {
    constexpr int kWrongUsage = 2;
    const std::string_view name = argc > 1 ? argv[1] : "";
    // A helper must not hold the program's socket: its end tells the program of this process's.
    if (fcntl(sandbox::kProcessSocket, F_SETFD, FD_CLOEXEC) == 0) {
        for (const Service& service : services) {
            if (name != sandbox::kRoleNames[static_cast<int>(service.role)]) {
                continue;
            }
            FollowProgram(service.role);
            if (service.warmUp) {
                service.warmUp();
            }
            WatchMemory();
            // Nothing is tidied up at the end: libraries would only want what they cannot have.
            _exit(LimitProcess(service.role) ? Serve(sandbox::kProcessSocket, service) : 1);
        }
    }
    _exit(kWrongUsage);
}

}  // namespace confine

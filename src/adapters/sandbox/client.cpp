#include "adapters/sandbox/client.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <mutex>
#include <new>
#include <set>
#include <utility>

#include "adapters/sandbox/transfer.h"

namespace sandbox {

namespace {

/// Once for each executable: without it whole kinds of pictures seem damaged.
void TellThatItDoesNotStart(const std::string& program, int error) {
    static std::mutex mutex;
    static std::set<std::string> told;
    const std::lock_guard lock(mutex);
    if (told.insert(program).second) {
        std::fprintf(stderr,
                     "parapico: the decoder %s could not be started (%s); pictures that need it "
                     "are unreadable\n",
                     program.c_str(), std::strerror(error));
    }
}

}  // namespace

Client::Client(ClientOptions options, const std::atomic<bool>* giveUp)
    : options_(std::move(options)), giveUp_(giveUp) {}

Client::~Client() {
    for (const Role role : {Role::Raster, Role::Eps, Role::Svg}) {
        Forget(role);
    }
}

Result Client::Decode(Kind kind, int file, platform::Size wanted) {
    Request request;
    request.task = kDecode;
    request.kind = static_cast<uint32_t>(kind);
    if (!wanted.Empty()) {
        request.width = wanted.width;
        request.height = wanted.height;
    }
    return Ask(request, file);
}

Result Client::Measure(Kind kind, int file) {
    Request request;
    request.task = kMeasure;
    request.kind = static_cast<uint32_t>(kind);
    return Ask(request, file);
}

Result Client::Ask(Request& request, int file) {
    request.serial = ++serial_;
    if (!ParseRequest(BytesOf(request), 1)) {
        return {Outcome::Failed, nullptr, 0, {}};
    }
    Result result;
    try {
        result = AnswerTo(request, file);
    } catch (const std::bad_alloc&) {
        result.outcome = Outcome::Lied;
    }
    if (result.outcome != Outcome::Decoded && result.outcome != Outcome::Failed &&
        result.outcome != Outcome::Large) {
        Forget(RoleOf(static_cast<Kind>(request.kind)));
    }
    return result;
}

/// The answer, or nothing when the time has passed or the caller gives up.
Received Client::Wait(int socket, int milliseconds) const {
    // Looks in between only where somebody may give up.
    const int most = giveUp_ == nullptr ? milliseconds : 20;
    Received received;
    for (int left = milliseconds; received.state == Received::State::Nothing && left > 0 &&
                                  !(giveUp_ != nullptr && *giveUp_);
         left -= most) {
        received = Receive(socket, std::min(left, most));
    }
    return received;
}

Result Client::AnswerTo(const Request& request, int file) {
    const Role role = RoleOf(static_cast<Kind>(request.kind));
    Result result;
    if (!SendRequest(role, request, file)) {
        return result;
    }
    const int limit =
        request.task == kMeasure ? options_.limitMilliseconds / 3 : options_.limitMilliseconds;
    const Received received = Wait(processes_[static_cast<int>(role)]->socket.Get(), limit);
    const auto answer = ParseAnswer(received.Bytes(), received.descriptors.size(), request);
    if (received.state != Received::State::Message) {
        const bool gone = received.state == Received::State::Gone;
        result.outcome = gone ? Outcome::Died : Outcome::Late;
    } else if (!answer) {
        result.outcome = Outcome::Lied;
    } else if (answer->what == kFailed) {
        result.outcome = Outcome::Failed;
    } else {
        result.outcome = Outcome::Decoded;
        result.size = {answer->width, answer->height};
        result.bitsPerPixel = static_cast<int>(answer->bitsPerPixel);
        if (int64_t{result.size.width} * result.size.height > options_.mostPixels &&
            answer->what == kDecoded) {
            result = {Outcome::Large, nullptr, 0, {}};
        } else if (answer->what == kDecoded) {
            result.pixels = ReadPixels(received.descriptors[0].Get(), result.size);
            if (!result.pixels) {
                result = {Outcome::Lied, nullptr, 0, {}};
            }
        }
    }
    return result;
}

/// A process that went away since the last picture is none of this picture's fault.
bool Client::SendRequest(Role role, const Request& request, int file) {
    std::optional<Process>& process = processes_[static_cast<int>(role)];
    if (process && Send(process->socket.Get(), BytesOf(request), file)) {
        return true;
    }
    Forget(role);
    std::vector<std::string> arguments = {kRoleNames[static_cast<int>(role)]};
    arguments.insert(arguments.end(), options_.arguments.begin(), options_.arguments.end());
    const std::string program = options_.program.empty() ? ProgramOf(role) : options_.program;
    int error = 0;
    process = StartProcess(program, arguments, error);
    if (!process) {
        TellThatItDoesNotStart(program, error);
    }
    return process && Send(process->socket.Get(), BytesOf(request), file);
}

void Client::Forget(Role role) {
    std::optional<Process>& process = processes_[static_cast<int>(role)];
    if (process) {
        EndProcess(*process);
        process.reset();
    }
}

}  // namespace sandbox

#include "adapters/door/client.h"

#include <new>
#include <utility>

#include "adapters/door/transfer.h"

namespace door {

Client::Client(ClientOptions options) : options_(std::move(options)) {}

Client::~Client() {
    for (const Role role : {Role::Raster, Role::Eps}) {
        Forget(role);
    }
}

Result Client::Decode(Kind kind, int file, platform::Size wanted) {
    if (kind == Kind::None || (!wanted.Empty() && !FitsBound(wanted))) {
        return {Outcome::Failed, nullptr, 0};
    }
    Result result;
    try {
        result = Ask(kind, file, wanted.Empty() ? platform::Size() : wanted);
    } catch (const std::bad_alloc&) {
        // An answer may still be under way to nobody.
        result = {Outcome::Lied, nullptr, 0};
    }
    if (result.outcome != Outcome::Decoded && result.outcome != Outcome::Failed) {
        Forget(RoleOf(kind));
    }
    return result;
}

Result Client::Ask(Kind kind, int file, platform::Size wanted) {
    const Role role = RoleOf(kind);
    Request request;
    request.serial = ++serial_;
    request.kind = static_cast<uint32_t>(kind);
    request.width = wanted.width;
    request.height = wanted.height;
    if (!SendRequest(role, request, file)) {
        return {Outcome::Missing, nullptr, 0};
    }
    const Received received =
        Receive(processes_[static_cast<int>(role)]->socket.Get(), options_.limitMilliseconds);
    if (received.state == Received::State::Nothing) {
        return {Outcome::Late, nullptr, 0};
    }
    if (received.state == Received::State::Gone) {
        return {Outcome::Died, nullptr, 0};
    }
    const auto answer = ParseAnswer(received.Bytes(), received.descriptors.size(), request.serial);
    if (!answer) {
        return {Outcome::Lied, nullptr, 0};
    }
    if (answer->decoded == 0) {
        return {Outcome::Failed, nullptr, 0};
    }
    Result result{Outcome::Decoded,
                  ReadPixels(received.descriptors[0].Get(), {answer->width, answer->height}),
                  static_cast<int>(answer->bitsPerPixel)};
    return result.pixels ? result : Result{Outcome::Lied, nullptr, 0};
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
    process = StartProcess(options_.program, arguments);
    return process && Send(process->socket.Get(), BytesOf(request), file);
}

void Client::Forget(Role role) {
    std::optional<Process>& process = processes_[static_cast<int>(role)];
    if (process) {
        EndProcess(*process);
        process.reset();
    }
}

}  // namespace door

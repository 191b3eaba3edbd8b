// The decoder's process: started by the program, answers one request after the other.

#include <fcntl.h>
#include <unistd.h>

#include <cstring>
#include <optional>

#include "adapters/decoder/decode.h"
#include "adapters/decoder/limits.h"
#include "adapters/decoder/serve.h"
#include "adapters/door/process.h"

namespace {

std::optional<door::Role> RoleNamed(const char* name) {
    for (int role = 0; role < door::kRoles; ++role) {
        if (std::strcmp(name, door::kRoleNames[role]) == 0) {
            return static_cast<door::Role>(role);
        }
    }
    return std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
    constexpr int kWrongUsage = 2;
    const auto role = argc == 2 ? RoleNamed(argv[1]) : std::nullopt;
    // A helper must not hold the program's socket: its end tells the program of this process's.
    if (!role || fcntl(door::kProcessSocket, F_SETFD, FD_CLOEXEC) != 0) {
        return kWrongUsage;
    }
    decoder::FollowProgram(*role);
    if (*role == door::Role::Raster) {
        decoder::WarmUp();
    }
    // Nothing is tidied up at the end: libraries would only want what they can no longer have.
    _exit(decoder::LimitProcess(*role)
              ? decoder::Serve(door::kProcessSocket, *role, decoder::Decode)
              : 1);
}

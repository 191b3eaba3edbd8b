#include "adapters/confine/limits.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>

#include "adapters/confine/file_rules.h"
#include "adapters/confine/system_calls.h"

namespace confine {

namespace {

/// By role. Raster needs each of them: the standard ones, the socket, what tells the memory, the
/// empty device, a file and its pixels. Interpreter and toolkit need 10 and 9, more with more
/// fonts.
constexpr rlim_t kMostDescriptors[sandbox::kRoles] = {8, 24, 16};

#if defined(__SANITIZE_ADDRESS__)
// Its shadow takes more addresses than any limit.
constexpr bool kLimitsMemory = false;
#else
constexpr bool kLimitsMemory = true;
#endif

bool LimitForGood(__rlimit_resource resource, rlim_t most) {
    const rlimit limit{most, most};
    return setrlimit(resource, &limit) == 0;
}

void KillGroup(int) {
    kill(0, SIGKILL);
}

/// "/proc/self/statm", or -1.
int watched = -1;

}  // namespace

void FollowProgram(sandbox::Role role) {
    // A helper would outlive this process: the signal's handler takes it along. It is not asked
    // for before the process leads its own group.
    if (role == sandbox::Role::Eps && getpgrp() == getpid()) {
        signal(SIGTERM, KillGroup);
        prctl(PR_SET_PDEATHSIG, SIGTERM);
    } else {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
    }
}

bool LimitProcess(sandbox::Role role) {
    return (!kLimitsMemory || LimitForGood(RLIMIT_AS, kMostMemory)) &&
           LimitForGood(RLIMIT_FSIZE, sandbox::kMostPixelBytes) &&
           LimitForGood(RLIMIT_NOFILE, kMostDescriptors[static_cast<int>(role)]) &&
           LimitForGood(RLIMIT_CORE, 0) && prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ConfineFiles(role) && ConfineSystemCalls(role);
}

void WatchMemory() {
    watched = open("/proc/self/statm", O_RDONLY | O_CLOEXEC);
}

MemoryUse UsedMemory() {
    std::array<char, 128> text{};
    unsigned long long pages = 0, resident = 0;
    if (watched < 0 || pread(watched, text.data(), text.size() - 1, 0) <= 0 ||
        std::sscanf(text.data(), "%llu %llu", &pages, &resident) != 2) {
        return {};
    }
    static const auto pageBytes = static_cast<uint64_t>(sysconf(_SC_PAGESIZE));
    return {pages * pageBytes, resident * pageBytes};
}

bool HasGrown(const MemoryUse& from, const MemoryUse& to) {
    return to.addresses > from.addresses + kMostKeptAddresses ||
           to.resident > from.resident + kMostKept;
}

void EndGroup() {
    if (getpgrp() == getpid()) {
        kill(0, SIGKILL);
    }
    _exit(1);
}

void AllowProcessorTime(int seconds) {
    rusage used{};
    rlimit limit{};
    getrusage(RUSAGE_SELF, &used);
    getrlimit(RLIMIT_CPU, &limit);
    // The limit counts whole seconds; one more for the two that are begun.
    const rlim_t spent = static_cast<rlim_t>(used.ru_utime.tv_sec + used.ru_stime.tv_sec) + 1;
    limit.rlim_cur = std::min(spent + static_cast<rlim_t>(seconds), limit.rlim_max);
    setrlimit(RLIMIT_CPU, &limit);
}

}  // namespace confine

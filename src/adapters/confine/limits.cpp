#include "adapters/confine/limits.h"

#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>

#include "adapters/confine/file_rules.h"
#include "adapters/confine/system_calls.h"

namespace confine {

namespace {

constexpr rlim_t kMostDescriptors = 64;

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

void EndGroup(int) {
    kill(0, SIGKILL);
}

}  // namespace

void FollowProgram(door::Role role) {
    // A helper would outlive this process: the signal's handler takes it along. It is not asked
    // for before the process leads its own group.
    if (role == door::Role::Eps && getpgrp() == getpid()) {
        signal(SIGTERM, EndGroup);
        prctl(PR_SET_PDEATHSIG, SIGTERM);
    } else {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
    }
}

bool LimitProcess(door::Role role) {
    return (!kLimitsMemory || LimitForGood(RLIMIT_AS, kMostMemory)) &&
           LimitForGood(RLIMIT_FSIZE, door::kMostPixelBytes) &&
           LimitForGood(RLIMIT_NOFILE, kMostDescriptors) && LimitForGood(RLIMIT_CORE, 0) &&
           prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && ConfineFiles(role) &&
           ConfineSystemCalls(role);
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

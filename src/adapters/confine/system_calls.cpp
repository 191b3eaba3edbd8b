#include "adapters/confine/system_calls.h"

#include <fcntl.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <span>

#include "adapters/sandbox/process.h"

namespace confine {

namespace {

/// Memory, threads, time, and reading and writing what is open already.
constexpr int kForAll[] = {
    SCMP_SYS(read),
    SCMP_SYS(readv),
    SCMP_SYS(pread64),
    SCMP_SYS(write),
    SCMP_SYS(writev),
    SCMP_SYS(pwrite64),
    SCMP_SYS(lseek),
    SCMP_SYS(close),
    SCMP_SYS(fstat),
    SCMP_SYS(ftruncate),
    SCMP_SYS(memfd_create),
    SCMP_SYS(poll),
    SCMP_SYS(ppoll),
    SCMP_SYS(select),
    SCMP_SYS(pselect6),
    SCMP_SYS(recvmsg),
    SCMP_SYS(sendmsg),
    SCMP_SYS(brk),
    SCMP_SYS(munmap),
    SCMP_SYS(mremap),
    SCMP_SYS(madvise),
    SCMP_SYS(futex),
    SCMP_SYS(set_robust_list),
    SCMP_SYS(get_robust_list),
    SCMP_SYS(rseq),
    SCMP_SYS(set_tid_address),
    SCMP_SYS(sched_yield),
    SCMP_SYS(sched_getaffinity),
    SCMP_SYS(membarrier),
    SCMP_SYS(sched_getparam),
    SCMP_SYS(sched_getscheduler),
    SCMP_SYS(rt_sigaction),
    SCMP_SYS(rt_sigprocmask),
    SCMP_SYS(rt_sigreturn),
    SCMP_SYS(sigaltstack),
    SCMP_SYS(restart_syscall),
    SCMP_SYS(pause),
    SCMP_SYS(clock_gettime),
    SCMP_SYS(clock_getres),
    SCMP_SYS(clock_nanosleep),
    SCMP_SYS(nanosleep),
    SCMP_SYS(gettimeofday),
    SCMP_SYS(time),
    SCMP_SYS(times),
    SCMP_SYS(getpid),
    SCMP_SYS(gettid),
    SCMP_SYS(getppid),
    SCMP_SYS(getpgrp),
    SCMP_SYS(getuid),
    SCMP_SYS(geteuid),
    SCMP_SYS(getgid),
    SCMP_SYS(getegid),
    SCMP_SYS(getrlimit),
    SCMP_SYS(getrusage),
    SCMP_SYS(getcpu),
    SCMP_SYS(getrandom),
    SCMP_SYS(sysinfo),
    SCMP_SYS(uname),
    SCMP_SYS(exit),
    SCMP_SYS(exit_group),
};

/// Reading files by name, beside opening them; which ones is up to the file rules.
constexpr int kForReading[] = {
    SCMP_SYS(access),  SCMP_SYS(faccessat),  SCMP_SYS(faccessat2), SCMP_SYS(stat),
    SCMP_SYS(lstat),   SCMP_SYS(newfstatat), SCMP_SYS(statx),      SCMP_SYS(statfs),
    SCMP_SYS(fstatfs), SCMP_SYS(readlink),   SCMP_SYS(readlinkat), SCMP_SYS(getdents64),
    SCMP_SYS(getcwd),  SCMP_SYS(fadvise64),  SCMP_SYS(mmap),       SCMP_SYS(mprotect),
};

/// Starting a program, and what a program does when it starts.
constexpr int kForStarting[] = {
    SCMP_SYS(dup),   SCMP_SYS(dup2),        SCMP_SYS(dup3),       SCMP_SYS(pipe),
    SCMP_SYS(pipe2), SCMP_SYS(close_range), SCMP_SYS(arch_prctl), SCMP_SYS(fork),
    SCMP_SYS(vfork), SCMP_SYS(execve),      SCMP_SYS(wait4),      SCMP_SYS(waitid),
};

constexpr int kForEvents[] = {
    SCMP_SYS(eventfd2),
};

constexpr scmp_arg_cmp Equal(unsigned argument, scmp_datum_t value) {
    return {argument, SCMP_CMP_EQ, value, 0};
}

constexpr scmp_arg_cmp Masked(unsigned argument, scmp_datum_t mask, scmp_datum_t value) {
    return {argument, SCMP_CMP_MASKED_EQ, mask, value};
}

/// One call that is allowed where its arguments compare so.
struct Allowed {
    int call;
    unsigned count;
    scmp_arg_cmp compares[2];
};

bool Allow(scmp_filter_ctx filter, std::span<const int> calls) {
    for (const int call : calls) {
        if (seccomp_rule_add(filter, SCMP_ACT_ALLOW, call, 0) != 0) {
            return false;
        }
    }
    return true;
}

bool Allow(scmp_filter_ctx filter, std::span<const Allowed> rules) {
    for (const Allowed& rule : rules) {
        if (seccomp_rule_add_array(filter, SCMP_ACT_ALLOW, rule.call, rule.count, rule.compares) !=
            0) {
            return false;
        }
    }
    return true;
}

bool AllowForAll(scmp_filter_ctx filter) {
    const auto self = static_cast<scmp_datum_t>(getpid());
    const Allowed rules[] = {
        // Its own limits can be read; that of the processor time is set for each picture.
        {SCMP_SYS(prlimit64), 2, {Equal(0, 0), Equal(1, RLIMIT_CPU)}},
        {SCMP_SYS(prlimit64), 2, {Equal(0, 0), Equal(2, 0)}},
        {SCMP_SYS(setrlimit), 1, {Equal(0, RLIMIT_CPU)}},
        {SCMP_SYS(prctl), 1, {Equal(0, PR_SET_NAME)}},
        // Signals to itself (abort, raise), and to its own group.
        {SCMP_SYS(tgkill), 1, {Equal(0, self)}},
        {SCMP_SYS(kill), 1, {Equal(0, 0)}},
        // No more requests.
        {SCMP_SYS(shutdown), 2, {Equal(0, sandbox::kProcessSocket), Equal(1, SHUT_RD)}},
        // Flags of a descriptor, and a second one; no locks, no signals to an owner.
        {SCMP_SYS(fcntl), 1, {Equal(1, F_GETFD)}},
        {SCMP_SYS(fcntl), 1, {Equal(1, F_SETFD)}},
        {SCMP_SYS(fcntl), 1, {Equal(1, F_GETFL)}},
    };
    return Allow(filter, kForAll) && Allow(filter, rules) &&
           // The library of threads asks for this one first, and else takes clone, whose arguments
           // can be seen.
           seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3), 0) == 0;
}

/// Threads for CLONE_THREAD, processes too for 0; never in a namespace of their own.
bool AllowClone(scmp_filter_ctx filter, scmp_datum_t flags) {
    constexpr scmp_datum_t kNamespaces = CLONE_NEWNS | CLONE_NEWCGROUP | CLONE_NEWUTS |
                                         CLONE_NEWIPC | CLONE_NEWUSER | CLONE_NEWPID | CLONE_NEWNET;
    return seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(clone), 1,
                            Masked(0, kNamespaces | flags, flags)) == 0;
}

/// For reading alone, also where the kernel has no file rules.
bool AllowReading(scmp_filter_ctx filter) {
    constexpr scmp_datum_t kWriting = O_ACCMODE | O_CREAT | O_TRUNC;
    const Allowed rules[] = {
        {SCMP_SYS(open), 1, {Masked(1, kWriting, O_RDONLY)}},
        {SCMP_SYS(openat), 1, {Masked(2, kWriting, O_RDONLY)}},
    };
    return Allow(filter, rules) && Allow(filter, kForReading);
}

bool AllowRaster(scmp_filter_ctx filter) {
    const Allowed rules[] = {
        // Memory, but none that is made to run: all libraries are loaded.
        {SCMP_SYS(mmap), 1, {Masked(2, PROT_EXEC, 0)}},
        {SCMP_SYS(mprotect), 1, {Masked(2, PROT_EXEC, 0)}},
        // What fstat is in the C library.
        {SCMP_SYS(newfstatat), 1, {Masked(3, AT_EMPTY_PATH, AT_EMPTY_PATH)}},
    };
    return Allow(filter, rules) && AllowClone(filter, CLONE_THREAD);
}

bool AllowRole(scmp_filter_ctx filter, sandbox::Role role) {
    switch (role) {
        case sandbox::Role::Raster:
            return AllowRaster(filter);
        case sandbox::Role::Eps:
            return AllowReading(filter) && Allow(filter, kForStarting) && AllowClone(filter, 0);
        case sandbox::Role::Svg:
            return AllowReading(filter) && Allow(filter, kForEvents) &&
                   AllowClone(filter, CLONE_THREAD);
    }
    return false;
}

}  // namespace

bool ConfineSystemCalls(sandbox::Role role) {
    scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ERRNO(EPERM));
    if (filter == nullptr) {
        return false;
    }
    // Threads that the libraries have started already are bound, too.
    const bool done = seccomp_attr_set(filter, SCMP_FLTATR_CTL_TSYNC, 1) == 0 &&
                      AllowForAll(filter) && AllowRole(filter, role) && seccomp_load(filter) == 0;
    seccomp_release(filter);
    return done;
}

}  // namespace confine

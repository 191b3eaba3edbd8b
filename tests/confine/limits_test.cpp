// What the decoder's process can and cannot do any more once its limits stand. Each case runs in a
// process of its own.
#include "adapters/confine/limits.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <sched.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <functional>
#include <utility>

#include "adapters/sandbox/process.h"

namespace {

using sandbox::Role;

constexpr int kUnlimited = 99;

/// How a limited process ends that runs `work` and exits with its result.
int StatusOf(Role role, const std::function<int()>& work) {
    const pid_t child = fork();
    if (child == 0) {
        _exit(confine::LimitProcess(role) ? work() : kUnlimited);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return status;
}

/// 0 for success, else the error's number.
int ErrorOf(Role role, const std::function<bool()>& work) {
    const int status = StatusOf(role, [&] { return work() ? 0 : errno; });
    EXPECT_TRUE(WIFEXITED(status));
    return WEXITSTATUS(status);
}

bool Opens(const char* path, int flags = O_RDONLY) {
    return open(path, flags | O_CLOEXEC, 0600) >= 0;
}

/// The system's call itself, past the library's ways around it.
int StatusOfProgram(const char* program) {
    const pid_t child = vfork();
    if (child == 0) {
        execl(program, program, "--version", nullptr);
        _exit(errno);
    }
    int status = 0;
    return child < 0 ? errno : (waitpid(child, &status, 0), WEXITSTATUS(status));
}

TEST(Limits, RasterOpensNothing) {
    for (const char* path : {"/etc/passwd", "/dev/null", "/usr/share", "/proc/self/maps"}) {
        EXPECT_EQ(ErrorOf(Role::Raster, [&] { return Opens(path); }), EPERM) << path;
    }
    EXPECT_EQ(ErrorOf(Role::Raster, [] { return Opens("/tmp/parapico-new", O_CREAT | O_RDWR); }),
              EPERM);
    EXPECT_EQ(ErrorOf(Role::Raster, [] { return unlink("/tmp/parapico-none") == 0; }), EPERM);
}

TEST(Limits, EpsReadsWhatItsHelperNeedsAndWritesNothing) {
    EXPECT_EQ(ErrorOf(Role::Eps, [] { return Opens("/etc/ld.so.cache"); }), 0);
    EXPECT_EQ(ErrorOf(Role::Eps, [] { return Opens("/usr/share/ghostscript", O_DIRECTORY); }), 0);
    for (const char* path : {"/etc/passwd", "/proc/self/maps", "/home", "/tmp", "/"}) {
        EXPECT_EQ(ErrorOf(Role::Eps, [&] { return Opens(path); }), EACCES) << path;
    }
    EXPECT_EQ(ErrorOf(Role::Eps, [] { return mkdir("/tmp/parapico-folder", 0700) == 0; }), EPERM);
}

TEST(Limits, SvgReadsLibrariesAndFontsAndWritesNothing) {
    for (const char* path : {"/etc/ld.so.cache", "/usr/share/fonts"}) {
        EXPECT_EQ(ErrorOf(Role::Svg, [&] { return Opens(path); }), 0) << path;
    }
    for (const char* path : {"/etc/passwd", "/dev/zero", "/proc/self/maps", "/tmp", "/"}) {
        EXPECT_EQ(ErrorOf(Role::Svg, [&] { return Opens(path); }), EACCES) << path;
    }
}

/// Also where the kernel knows no rules of files: EPERM comes from the list of calls.
TEST(Limits, NothingIsOpenedForWriting) {
    for (const Role role : {Role::Raster, Role::Eps, Role::Svg}) {
        for (const int flags : {O_WRONLY, O_RDWR, O_CREAT | O_RDWR, O_CREAT | O_RDONLY,
                                O_RDONLY | O_TRUNC, O_WRONLY | O_TRUNC, O_RDWR | O_APPEND}) {
            for (const char* path : {"/tmp/parapico-new", "/etc/ld.so.cache", "/dev/null"}) {
                EXPECT_EQ(ErrorOf(role, [=] { return Opens(path, flags); }), EPERM)
                    << path << " " << flags;
            }
        }
        EXPECT_EQ(ErrorOf(role, [] { return Opens("/tmp", O_TMPFILE | O_RDWR); }), EPERM);
#ifdef SYS_open
        EXPECT_EQ(ErrorOf(role,
                          [] {
                              return syscall(SYS_open, "/tmp/parapico-new", O_CREAT | O_WRONLY,
                                             0600) >= 0;
                          }),
                  EPERM);
#endif
    }
    EXPECT_NE(access("/tmp/parapico-new", F_OK), 0);
}

TEST(Limits, DescriptorsHaveFlagsButNoOwnersAndLocks) {
    for (const Role role : {Role::Raster, Role::Eps, Role::Svg}) {
        for (const int command : {F_GETFD, F_SETFD, F_GETFL}) {
            EXPECT_EQ(ErrorOf(role, [=] { return fcntl(0, command, 0) >= 0; }), 0) << command;
        }
        struct flock lock {};
        for (const int command : {F_SETOWN, F_SETSIG, F_SETLEASE, F_NOTIFY, F_SETPIPE_SZ}) {
            EXPECT_EQ(ErrorOf(role, [=] { return fcntl(0, command, 0) == 0; }), EPERM) << command;
        }
        EXPECT_EQ(ErrorOf(role, [&] { return fcntl(0, F_SETLK, &lock) == 0; }), EPERM);
    }
}

TEST(Limits, NoNamespacesOfTheirOwn) {
    for (const Role role : {Role::Raster, Role::Eps, Role::Svg}) {
        for (const int flag : {CLONE_NEWUSER, CLONE_NEWNET, CLONE_NEWNS, CLONE_NEWPID, CLONE_NEWIPC,
                               CLONE_NEWUTS, CLONE_NEWCGROUP}) {
            // A child that came to be would return here as well.
            EXPECT_EQ(ErrorOf(role,
                              [=] {
                                  return syscall(SYS_clone, flag | SIGCHLD, nullptr, nullptr,
                                                 nullptr, nullptr) >= 0;
                              }),
                      EPERM)
                << flag;
            EXPECT_EQ(ErrorOf(role, [=] { return unshare(flag) == 0; }), EPERM);
        }
    }
    EXPECT_EQ(
        ErrorOf(
            Role::Eps,
            [] { return syscall(SYS_clone, SIGCHLD, nullptr, nullptr, nullptr, nullptr) >= 0; }),
        0);
}

TEST(Limits, OnlyTheProgramsSocketStopsTakingMessages) {
    EXPECT_EQ(ErrorOf(Role::Raster, [] { return shutdown(4, SHUT_RD) == 0; }), EPERM);
    EXPECT_EQ(ErrorOf(Role::Raster, [] { return shutdown(sandbox::kProcessSocket, SHUT_WR) == 0; }),
              EPERM);
}

TEST(Limits, ProgramsAreStartedByEpsAloneAndOneOnly) {
    for (const Role role : {Role::Raster, Role::Svg}) {
        EXPECT_EQ(ErrorOf(role, [] { return fork() >= 0; }), EPERM);
        EXPECT_EQ(ErrorOf(role, [] { return execl("/bin/true", "true", nullptr) == 0; }), EPERM);
    }
    const auto runs = [](const char* program) {
        return WEXITSTATUS(StatusOf(Role::Eps, [=] { return StatusOfProgram(program); }));
    };
    EXPECT_EQ(runs("/usr/bin/gs"), 0);
    EXPECT_EQ(runs("/bin/true"), EACCES);
    EXPECT_EQ(runs("/bin/sh"), EACCES);
}

TEST(Limits, NoNetworkAndNoTracing) {
    for (const Role role : {Role::Raster, Role::Eps, Role::Svg}) {
        for (const int family : {AF_INET, AF_INET6, AF_UNIX, AF_NETLINK}) {
            EXPECT_EQ(ErrorOf(role, [=] { return socket(family, SOCK_DGRAM, 0) >= 0; }), EPERM);
        }
        int pair[2];
        EXPECT_EQ(ErrorOf(role, [&] { return socketpair(AF_UNIX, SOCK_STREAM, 0, pair) == 0; }),
                  EPERM);
        EXPECT_EQ(ErrorOf(role, [] { return ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) == 0; }),
                  EPERM);
        const pid_t self = getpid();
        EXPECT_EQ(ErrorOf(role, [=] { return kill(self, 0) == 0; }), EPERM);
    }
}

TEST(Limits, LimitsStay) {
    for (const Role role : {Role::Raster, Role::Eps, Role::Svg}) {
        const rlimit more{RLIM_INFINITY, RLIM_INFINITY};
        EXPECT_EQ(ErrorOf(role, [&] { return setrlimit(RLIMIT_FSIZE, &more) == 0; }), EPERM);
        EXPECT_EQ(ErrorOf(role, [&] { return setrlimit(RLIMIT_AS, &more) == 0; }), EPERM);
        rlimit limit{};
        EXPECT_EQ(
            ErrorOf(role,
                    [&] { return getrlimit(RLIMIT_CORE, &limit) == 0 && limit.rlim_max == 0; }),
            0);
    }
}

TEST(Limits, MemoryIsBounded) {
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the sanitizer's own memory has no limit";
#endif
    const auto get = [](size_t bytes) {
        return mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) !=
               MAP_FAILED;
    };
    EXPECT_EQ(ErrorOf(Role::Raster, [&] { return get(size_t{1} << 30); }), 0);
    EXPECT_EQ(ErrorOf(Role::Raster, [&] { return get(confine::kMostMemory); }), ENOMEM);
    EXPECT_EQ(ErrorOf(Role::Raster,
                      [] {
                          return mmap(nullptr, 4096, PROT_READ | PROT_EXEC,
                                      MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) != MAP_FAILED;
                      }),
              EPERM);
}

TEST(Limits, AnAnswerIsBounded) {
    EXPECT_EQ(
        ErrorOf(Role::Raster,
                [] { return ftruncate(memfd_create("fits", 0), sandbox::kMostPixelBytes) == 0; }),
        0);
    const int status = StatusOf(Role::Raster, [] {
        return ftruncate(memfd_create("large", 0), sandbox::kMostPixelBytes + 1);
    });
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ);
}

/// They bound what is held in memory that counts as files.
TEST(Limits, OpenDescriptorsAreFew) {
    for (const auto& [role, most] :
         {std::pair{Role::Raster, 8}, {Role::Eps, 24}, {Role::Svg, 16}}) {
        const int count = WEXITSTATUS(StatusOf(role, [] {
            close(STDIN_FILENO);
            int made = 0;
            while (made < 98 && memfd_create("one more", 0) >= 0) {
                ++made;
            }
            return made;
        }));
        EXPECT_GT(count, 0);
        EXPECT_LT(count, most);
    }
}

TEST(Limits, ASpinDiesWhenItsTimeIsOver) {
    rusage before{}, after{};
    getrusage(RUSAGE_CHILDREN, &before);
    const int status = StatusOf(Role::Raster, [] {
        // The second time counts from itself on, so the first one is no promise.
        confine::AllowProcessorTime(100);
        confine::AllowProcessorTime(1);
        static volatile unsigned turns = 0;
        while (true) {
            turns = turns + 1;
        }
        return 0;
    });
    getrusage(RUSAGE_CHILDREN, &after);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGXCPU);
    const auto seconds = after.ru_utime.tv_sec + after.ru_stime.tv_sec - before.ru_utime.tv_sec -
                         before.ru_stime.tv_sec;
    EXPECT_GE(seconds, 1);
    EXPECT_LE(seconds, 4);
}

TEST(Limits, ThreadsWorkAndTimeIsTold) {
    for (const Role role : {Role::Raster, Role::Eps, Role::Svg}) {
        EXPECT_EQ(ErrorOf(role,
                          [] {
                              pthread_t thread{};
                              const auto nothing = [](void* argument) { return argument; };
                              timespec now{};
                              return pthread_create(&thread, nullptr, nothing, nullptr) == 0 &&
                                     pthread_join(thread, nullptr) == 0 &&
                                     clock_gettime(CLOCK_MONOTONIC, &now) == 0;
                          }),
                  0);
    }
}

}  // namespace

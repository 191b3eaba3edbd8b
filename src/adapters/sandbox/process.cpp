#include "adapters/sandbox/process.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>

namespace sandbox {

namespace fs = std::filesystem;

namespace {

/// The user's own fonts lie below it.
std::string Home() {
    const char* home = std::getenv("HOME");
    return home != nullptr ? home : "/";
}

/// The decoder gets none of the user's variables but HOME: they may hold the names of files.
std::vector<std::string> Environment() {
    // One thread: pictures are small, and starting threads takes longer than it saves.
    std::vector<std::string> result = {"PATH=/usr/bin:/bin", "LC_ALL=C.UTF-8", "HOME=" + Home(),
                                       "OMP_NUM_THREADS=1"};
    for (const char* name : {"ASAN_OPTIONS", "UBSAN_OPTIONS"}) {
        if (const char* value = std::getenv(name)) {
            result.push_back(std::string(name) + "=" + value);
        }
    }
    return result;
}

std::vector<char*> Pointers(std::vector<std::string>& words) {
    std::vector<char*> result;
    for (std::string& word : words) {
        result.push_back(word.data());
    }
    result.push_back(nullptr);
    return result;
}

/// How the process begins; frees itself.
struct Start {
    Start()
        : hasFiles(posix_spawn_file_actions_init(&files) == 0),
          hasAttributes(posix_spawnattr_init(&attributes) == 0) {}
    ~Start() {
        if (hasFiles) {
            posix_spawn_file_actions_destroy(&files);
        }
        if (hasAttributes) {
            posix_spawnattr_destroy(&attributes);
        }
    }
    Start(const Start&) = delete;
    Start& operator=(const Start&) = delete;

    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;
    bool hasFiles, hasAttributes;
};

bool Prepare(Start& start, int socket) {
    if (!start.hasFiles || !start.hasAttributes) {
        return false;
    }
    sigset_t all, none;
    sigfillset(&all);
    sigemptyset(&none);
    constexpr short kFlags = POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETPGROUP;
    // The socket first: it may be one of the numbers that are taken next.
    bool done = posix_spawnattr_setsigdefault(&start.attributes, &all) == 0 &&
                posix_spawnattr_setsigmask(&start.attributes, &none) == 0 &&
                posix_spawnattr_setpgroup(&start.attributes, 0) == 0 &&
                posix_spawnattr_setflags(&start.attributes, kFlags) == 0 &&
                posix_spawn_file_actions_adddup2(&start.files, socket, kProcessSocket) == 0;
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        done = done && posix_spawn_file_actions_addopen(&start.files, standard, "/dev/null", O_RDWR,
                                                        0) == 0;
    }
    return done && posix_spawn_file_actions_addclosefrom_np(&start.files, kProcessSocket + 1) == 0;
}

}  // namespace

std::string ProgramOf(Role role) {
    const std::string name = role == Role::Svg ? "parapico-svg" : "parapico-decoder";
    std::error_code error;
    const fs::path own = fs::read_symlink("/proc/self/exe", error).parent_path();
    if (error) {
        return {};
    }
    const fs::path beside = own / name;
    return access(beside.c_str(), X_OK) == 0
               ? beside.string()
               : (own / "../libexec/parapico" / name).lexically_normal().string();
}

std::optional<Process> StartProcess(const std::string& program,
                                    const std::vector<std::string>& arguments, int& error) {
    int ends[2] = {-1, -1};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0) {
        error = errno;
        return std::nullopt;
    }
    Process process{-1, Descriptor(ends[0])};
    const Descriptor theirs(ends[1]);
    Start start;
    if (!Prepare(start, theirs.Get())) {
        error = ENOMEM;
        return std::nullopt;
    }
    std::vector<std::string> words = {program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<std::string> environment = Environment();
    error = posix_spawn(&process.id, program.c_str(), &start.files, &start.attributes,
                        Pointers(words).data(), Pointers(environment).data());
    return error == 0 ? std::optional(std::move(process)) : std::nullopt;
}

void EndProcess(const Process& process) {
    if (process.id <= 0) {
        return;
    }
    // Until it is waited for its number cannot be given away, even if it is dead. The group goes
    // first: what the process started must not stay behind.
    kill(-process.id, SIGKILL);
    kill(process.id, SIGKILL);
    while (waitpid(process.id, nullptr, 0) == -1 && errno == EINTR) {
    }
}

}  // namespace sandbox

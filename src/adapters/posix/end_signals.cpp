#include "adapters/posix/end_signals.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>

namespace posix_adapter {

namespace {

constexpr int kEndSignals[] = {SIGTERM, SIGINT, SIGHUP};

/// Where the handler writes. Read by a handler in any thread: never closed while one is installed.
volatile sig_atomic_t target = -1;

/// Only what is safe inside a signal handler.
void NoteSignal(int) {
    const int error = errno;
    const char mark = 1;
    [[maybe_unused]] const ssize_t written = write(target, &mark, 1);
    errno = error;
}

void PassOver(int) {}

void Handle(int number, void (*handler)(int)) {
    struct sigaction present {};
    if (sigaction(number, nullptr, &present) != 0 || present.sa_handler == SIG_IGN) {
        return;
    }
    struct sigaction wanted {};
    wanted.sa_handler = handler;
    wanted.sa_flags = SA_RESTART;
    sigemptyset(&wanted.sa_mask);
    sigaction(number, &wanted, nullptr);
}

}  // namespace

EndSignals::EndSignals() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    reading_ = Descriptor(ends[0]);
    writing_ = Descriptor(ends[1]);
    target = writing_.Get();
    for (const int number : kEndSignals) {
        Handle(number, NoteSignal);
    }
    // A handler and not "ignore", which started programs would inherit.
    Handle(SIGPIPE, PassOver);
}

EndSignals::~EndSignals() {
    for (const int number : kEndSignals) {
        Handle(number, SIG_DFL);
    }
    target = -1;
}

void EndSignals::Drain() {
    char marks[64];
    while (read(reading_.Get(), marks, sizeof marks) > 0) {
    }
}

}  // namespace posix_adapter

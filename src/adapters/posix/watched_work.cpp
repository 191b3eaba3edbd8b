#include "adapters/posix/watched_work.h"

#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace posix_adapter {

namespace {

using platform::Outcome;
using std::chrono::milliseconds;

constexpr milliseconds kBetweenReports{5};
constexpr milliseconds kLongestGoodbye{40};

struct Shared {
    WatchedWork watched;
    std::mutex mutex;
    std::condition_variable ended;
    bool over = false;
    int error = 0;

    bool WaitFor(milliseconds time) {
        std::unique_lock lock(mutex);
        return ended.wait_for(lock, time, [this] { return over; });
    }
    void Wait() {
        std::unique_lock lock(mutex);
        ended.wait(lock, [this] { return over; });
    }
};

/// However the caller goes, the work knows of it.
class Goodbye {
public:
    explicit Goodbye(Shared& shared) : shared_(shared) {}
    ~Goodbye() {
        if (shared_.watched.Stop() || shared_.watched.Stopped()) {
            shared_.WaitFor(kLongestGoodbye);
        } else {
            shared_.Wait();  // it commits, or is over already
        }
    }
    Goodbye(const Goodbye&) = delete;
    Goodbye& operator=(const Goodbye&) = delete;

private:
    Shared& shared_;
};

Outcome OutcomeOf(int error) {
    return error == 0 ? Outcome::Done : error == ECANCELED ? Outcome::Stopped : Outcome::Failed;
}

}  // namespace

Outcome RunWatched(Work work, const platform::Report& report, bool ownThread, int& error) {
    const auto shared = std::make_shared<Shared>();
    WatchedWork& watched = shared->watched;
    if (report && !report({0, 0})) {
        return Outcome::Stopped;
    }
    const auto run = [shared, work = std::move(work)] {
        const int result = work(shared->watched);
        const std::lock_guard lock(shared->mutex);
        shared->error = result;
        shared->over = true;
        shared->ended.notify_all();
    };
    if (!report || !ownThread) {
        run();
        error = shared->error;
        return OutcomeOf(error);
    }
    try {
        std::thread(run).detach();
    } catch (const std::system_error&) {
        error = EAGAIN;
        return Outcome::Failed;
    }
    const Goodbye goodbye(*shared);
    while (!shared->WaitFor(kBetweenReports)) {
        if (!report({watched.done, watched.whole}) && watched.Stop()) {
            return Outcome::Stopped;
        }
    }
    error = shared->error;
    return OutcomeOf(error);
}

}  // namespace posix_adapter

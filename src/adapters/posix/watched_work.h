// Work on a thread of its own, stopped by its caller at any moment, however long the disk takes.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>

#include "platform/progress.h"

namespace posix_adapter {

/// What the work and its caller share.
class WatchedWork {
public:
    std::atomic<int64_t> done{0}, whole{0};  // what is reported

    /// The work's last question before the step that changes anything. False: it was stopped, and
    /// is to leave no trace.
    bool MayCommit() { return Change(kCommitting); }
    /// The caller's. False where the work commits already.
    bool Stop() { return Change(kStopped); }
    bool Stopped() const { return state_ == kStopped; }

private:
    enum State { kRunning, kCommitting, kStopped };
    bool Change(State to) {
        State running = kRunning;
        return state_.compare_exchange_strong(running, to);
    }
    std::atomic<State> state_{kRunning};
};

/// 0, or errno. Called once; asks Stopped now and then and MayCommit at its end.
using Work = std::function<int(WatchedWork&)>;

/// Runs the work and reports until it is done. A stop, or a report that throws, is answered after
/// 40 ms at the latest: a work that still hangs then ends by itself later, so it must own all that
/// it uses. Without a report, or with `ownThread` false, it runs on the caller's thread and reports
/// at its beginning only. `error` gets errno of a failure.
platform::Outcome RunWatched(Work work, const platform::Report& report, bool ownThread, int& error);

}  // namespace posix_adapter

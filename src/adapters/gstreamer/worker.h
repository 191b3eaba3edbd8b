// Threads that nobody waits for: a sound server that hangs holds up its own piece only.
#pragma once

#include <functional>
#include <memory>

namespace gst_adapter {

/// Runs `body` on a thread of its own. False when the system gives no thread. `body` must own
/// everything that it uses, and must not throw.
bool StartThread(std::function<void()> body);

/// Waits until the threads of StartThread have ended, at most `milliseconds`; for the end of the
/// program. False when some still run.
bool WaitForThreads(int milliseconds);

/// Tasks run one after the other on one thread, which starts with the first task.
class Worker {
public:
    Worker();
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;
    /// The tasks posted so far still run; nobody waits for them.
    ~Worker();

    /// Any thread. Tasks must own what they use. False when the system gives no thread.
    bool Post(std::function<void()> task) const;
    /// Calls `poll` every `milliseconds` while no task waits; 0 ends that. From a task only.
    void Poll(int milliseconds, std::function<void()> poll) const;

private:
    struct Queue;
    static void Run(const std::shared_ptr<Queue>& queue);
    std::shared_ptr<Queue> queue_;
};

}  // namespace gst_adapter

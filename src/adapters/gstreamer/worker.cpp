#include "adapters/gstreamer/worker.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace gst_adapter {

namespace {

struct Census {
    std::mutex mutex;
    std::condition_variable changed;
    int alive = 0;
};

/// Never destroyed: threads may outlive the program's static objects.
Census& TheCensus() {
    static Census* census = new Census;
    return *census;
}

void Count(int step) {
    Census& census = TheCensus();
    const std::lock_guard lock(census.mutex);
    census.alive += step;
    census.changed.notify_all();
}

}  // namespace

bool StartThread(std::function<void()> body) {
    Count(1);
    try {
        std::thread([body = std::move(body)]() mutable {
            body();
            body = nullptr;  // what it owned goes before the thread counts as ended
            Count(-1);
        }).detach();
        return true;
    } catch (const std::system_error&) {
        Count(-1);
        return false;
    }
}

bool WaitForThreads(int milliseconds) {
    Census& census = TheCensus();
    std::unique_lock lock(census.mutex);
    return census.changed.wait_for(lock, std::chrono::milliseconds(milliseconds),
                                   [&] { return census.alive == 0; });
}

struct Worker::Queue {
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<std::function<void()>> tasks;
    bool started = false;
    bool closed = false;
    // Touched by the thread alone.
    std::function<void()> poll;
    int pollMs = 0;
};

Worker::Worker() : queue_(std::make_shared<Queue>()) {}

Worker::~Worker() {
    const std::lock_guard lock(queue_->mutex);
    queue_->closed = true;
    queue_->changed.notify_all();
}

bool Worker::Post(std::function<void()> task) const {
    const std::lock_guard lock(queue_->mutex);
    if (!queue_->started) {
        queue_->started = StartThread([queue = queue_] { Run(queue); });
    }
    if (queue_->started) {
        queue_->tasks.push_back(std::move(task));
        queue_->changed.notify_all();
    }
    return queue_->started;
}

void Worker::Poll(int milliseconds, std::function<void()> poll) const {
    queue_->pollMs = milliseconds;
    queue_->poll = std::move(poll);
}

void Worker::Run(const std::shared_ptr<Queue>& queue) {
    std::unique_lock lock(queue->mutex);
    const auto due = [&] { return queue->closed || !queue->tasks.empty(); };
    for (;;) {
        if (queue->pollMs > 0) {
            queue->changed.wait_for(lock, std::chrono::milliseconds(queue->pollMs), due);
        } else {
            queue->changed.wait(lock, due);
        }
        std::function<void()> next;
        if (!queue->tasks.empty()) {
            next = std::move(queue->tasks.front());
            queue->tasks.pop_front();
        } else if (queue->closed) {
            break;
        } else {
            next = queue->poll;
        }
        lock.unlock();
        if (next) {
            next();
        }
        next = nullptr;
        lock.lock();
    }
    lock.unlock();
    queue->poll = nullptr;
}

}  // namespace gst_adapter

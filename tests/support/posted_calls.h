// Stands for the event loop of a thread that waits for others.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <utility>

namespace fakes {

/// Keeps the calls that threads post until the thread that waits for them runs them.
class PostedCalls {
public:
    /// To be given to what posts.
    std::function<void(std::function<void()>)> Taker() {
        return [this](std::function<void()> call) {
            const std::lock_guard lock(mutex_);
            calls_.push_back(std::move(call));
            changed_.notify_all();
        };
    }
    /// Runs the calls that come until `done`.
    void RunUntil(const std::function<bool()>& done) {
        while (!done()) {
            std::unique_lock lock(mutex_);
            changed_.wait(lock, [this] { return !calls_.empty(); });
            const auto call = std::move(calls_.front());
            calls_.pop_front();
            lock.unlock();
            call();
            ++ran;
        }
    }
    int ran = 0;

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> calls_;
};

}  // namespace fakes

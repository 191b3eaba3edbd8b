// Asks the desktop, over its session bus, neither to blank nor to lock the screen.
#pragma once

#include <QThread>
#include <memory>

namespace qt_adapter {

/// Requests are sent from a thread of its own, so that a desktop that hangs holds nothing up. A
/// desktop that takes no such request is passed over in silence. The desktop forgets a request when
/// the program ends, however it ends.
class ScreenKeeper {
public:
    ScreenKeeper();
    ScreenKeeper(const ScreenKeeper&) = delete;
    ScreenKeeper& operator=(const ScreenKeeper&) = delete;
    /// Waits a moment for the thread; one that hangs is left to the end of the process.
    ~ScreenKeeper();

    void Keep(bool on);

private:
    class Worker;
    std::unique_ptr<QThread> thread_;
    Worker* worker_;  // lives on the thread
};

}  // namespace qt_adapter

// The desktop's session bus, reached without holding anything up.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QThread>
#include <functional>
#include <memory>

namespace qt_adapter {

/// Whether the desktop has one. Without one the bus library would start a bus of its own.
bool HasSessionBus();

/// A connection of its own, made from a thread of its own as connecting waits for the bus. Without
/// a bus, or with one that hangs, nothing ever happens.
class SessionBus {
public:
    /// `address`: another bus than the desktop's, for tests.
    explicit SessionBus(const QString& address = {});
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;
    /// Waits a moment for the thread; one that hangs is left to the end of the process.
    ~SessionBus();

    /// Calls `then` from this thread's event loop once connected, unless `receiver` has gone.
    void WhenConnected(QObject& receiver, std::function<void(QDBusConnection)> then);

private:
    QString name_;
    std::unique_ptr<QThread> thread_;
};

}  // namespace qt_adapter

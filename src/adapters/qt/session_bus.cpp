#include "adapters/qt/session_bus.h"

#include <QFileInfo>
#include <utility>

namespace qt_adapter {

namespace {

constexpr unsigned long kLeaveTimeoutMs = 500;

/// Connections of a process are told apart by name.
QString NextName() {
    static int count = 0;
    return QStringLiteral("parapico-%1").arg(++count);
}

}  // namespace

bool HasSessionBus() {
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           (qEnvironmentVariableIsSet("XDG_RUNTIME_DIR") &&
            QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus"));
}

SessionBus::SessionBus(const QString& address) : name_(NextName()) {
    if (address.isEmpty() && !HasSessionBus()) {
        return;
    }
    thread_.reset(QThread::create([address, name = name_] {
        if (address.isEmpty()) {
            QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
        } else {
            QDBusConnection::connectToBus(address, name);
        }
    }));
    thread_->setObjectName(QStringLiteral("session bus"));
}

SessionBus::~SessionBus() {
    if (!thread_) {
        return;
    }
    if (!thread_->wait(kLeaveTimeoutMs)) {
        thread_.release();  // a thread that runs must not be destroyed
        return;
    }
    QDBusConnection::disconnectFromBus(name_);
}

void SessionBus::WhenConnected(QObject& receiver, std::function<void(QDBusConnection)> then) {
    if (!thread_) {
        return;
    }
    const auto tell = [name = name_, told = std::make_shared<bool>(false), then = std::move(then)] {
        const QDBusConnection bus(name);
        if (!std::exchange(*told, true) && bus.isConnected()) {
            then(bus);
        }
    };
    QObject::connect(thread_.get(), &QThread::finished, &receiver, tell, Qt::QueuedConnection);
    if (thread_->isFinished()) {
        QMetaObject::invokeMethod(&receiver, tell, Qt::QueuedConnection);  // nobody would say it
    } else if (!thread_->isRunning()) {
        thread_->start();
    }
}

}  // namespace qt_adapter

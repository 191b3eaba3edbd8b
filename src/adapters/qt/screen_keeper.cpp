#include "adapters/qt/screen_keeper.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QVariantMap>
#include <optional>

#include "adapters/qt/session_bus.h"

namespace qt_adapter {

namespace {

constexpr int kReplyTimeoutMs = 2000;
constexpr unsigned long kLeaveTimeoutMs = 500;
constexpr uint kPortalInhibitIdle = 8;

QDBusMessage ScreenSaverCall(const QString& method) {
    QDBusMessage call = QDBusMessage::createMethodCall("org.freedesktop.ScreenSaver",
                                                       "/org/freedesktop/ScreenSaver",
                                                       "org.freedesktop.ScreenSaver", method);
    call.setAutoStartService(false);
    return call;
}

QDBusMessage PortalInhibit(const QString& reason) {
    QDBusMessage call = QDBusMessage::createMethodCall("org.freedesktop.portal.Desktop",
                                                       "/org/freedesktop/portal/desktop",
                                                       "org.freedesktop.portal.Inhibit", "Inhibit");
    call << QString() << kPortalInhibitIdle << QVariantMap{{"reason", reason}};
    return call;
}

/// First value of the answer; none for an error or an empty answer.
std::optional<QVariant> Ask(const QDBusMessage& call) {
    const QDBusMessage reply =
        QDBusConnection::sessionBus().call(call, QDBus::Block, kReplyTimeoutMs);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty()) {
        return std::nullopt;
    }
    return reply.arguments().first();
}

}  // namespace

class ScreenKeeper::Worker : public QObject {
public:
    void Keep(bool on) {
        if (!HasSessionBus() || !QDBusConnection::sessionBus().isConnected()) {
            return;
        }
        if (!on) {
            Release();
        } else if (!cookie_ && request_.isEmpty()) {
            Request();
        }
    }

private:
    void Request() {
        const QString reason = QStringLiteral("スライドショー");
        QDBusMessage call = ScreenSaverCall("Inhibit");
        call << QStringLiteral("パラピコ") << reason;
        if (const auto cookie = Ask(call)) {
            cookie_ = cookie->toUInt();
        } else if (const auto handle = Ask(PortalInhibit(reason))) {
            request_ = handle->value<QDBusObjectPath>().path();
        }
    }

    void Release() {
        QDBusConnection bus = QDBusConnection::sessionBus();
        if (cookie_) {
            bus.send(ScreenSaverCall("UnInhibit") << *cookie_);
            cookie_.reset();
        }
        if (!request_.isEmpty()) {
            bus.send(QDBusMessage::createMethodCall("org.freedesktop.portal.Desktop", request_,
                                                    "org.freedesktop.portal.Request", "Close"));
            request_.clear();
        }
    }

    std::optional<uint> cookie_;
    QString request_;  // object path of the portal's request
};

ScreenKeeper::ScreenKeeper() : thread_(std::make_unique<QThread>()), worker_(new Worker) {
    worker_->moveToThread(thread_.get());
    QObject::connect(thread_.get(), &QThread::finished, worker_, &QObject::deleteLater);
    thread_->setObjectName(QStringLiteral("screen keeper"));
    thread_->start();
}

ScreenKeeper::~ScreenKeeper() {
    thread_->quit();
    if (!thread_->wait(kLeaveTimeoutMs)) {
        thread_.release();  // a thread that runs must not be destroyed
    }
}

void ScreenKeeper::Keep(bool on) {
    QMetaObject::invokeMethod(
        worker_, [worker = worker_, on] { worker->Keep(on); }, Qt::QueuedConnection);
}

}  // namespace qt_adapter

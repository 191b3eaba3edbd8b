// What is sent on the session bus to keep the screen from blanking, on a bus of the test's own.
#include "adapters/qt/screen_keeper.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QDeadlineTimer>
#include <QProcess>
#include <QStandardPaths>

namespace {

constexpr int kLimitMs = 20000;
constexpr uint kCookie = 77;

/// Stands in for the desktop's screen saver.
class ScreenSaver : public QDBusVirtualObject {
public:
    QStringList calls;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        QString call = message.member();
        for (const QVariant& argument : message.arguments()) {
            call += " " + argument.toString();
        }
        calls << call;
        return bus.send(message.member() == "Inhibit" ? message.createReply(kCookie)
                                                      : message.createReply());
    }
    bool WaitForCalls(int count) {
        const QDeadlineTimer limit(kLimitMs);
        while (calls.size() < count && !limit.hasExpired()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
        }
        return calls.size() >= count;
    }
};

TEST(ScreenKeeper, AsksOnceAndTakesItBack) {
    ASSERT_FALSE(QStandardPaths::findExecutable("dbus-daemon").isEmpty())
        << "the package dbus-daemon is missing";
    QProcess daemon;
    daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    ASSERT_TRUE(daemon.waitForReadyRead(kLimitMs));
    const QByteArray address = daemon.readLine().trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    {
        QDBusConnection bus = QDBusConnection::connectToBus(QString::fromUtf8(address), "saver");
        ScreenSaver saver;
        ASSERT_TRUE(bus.registerVirtualObject("/org/freedesktop/ScreenSaver", &saver));
        ASSERT_TRUE(bus.registerService("org.freedesktop.ScreenSaver"));
        qt_adapter::ScreenKeeper keeper;
        keeper.Keep(true);
        keeper.Keep(true);
        keeper.Keep(false);
        keeper.Keep(false);
        keeper.Keep(true);
        EXPECT_TRUE(saver.WaitForCalls(3));
        EXPECT_EQ(saver.calls.join(", ").toStdString(),
                  "Inhibit パラピコ スライドショー, UnInhibit 77, Inhibit パラピコ スライドショー");
    }
    QDBusConnection::disconnectFromBus("saver");
    daemon.kill();
    daemon.waitForFinished();
}

}  // namespace

// A session bus of the test's own.
#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDeadlineTimer>
#include <QProcess>
#include <QStandardPaths>

namespace qt_tests {

constexpr int kLimitMs = 20000;

struct TestBus {
    QProcess daemon;
    QString address;

    TestBus() {
        EXPECT_FALSE(QStandardPaths::findExecutable("dbus-daemon").isEmpty())
            << "the package dbus-daemon is missing";
        daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        EXPECT_TRUE(daemon.waitForReadyRead(kLimitMs));
        address = QString::fromUtf8(daemon.readLine().trimmed());
    }
    ~TestBus() {
        daemon.kill();
        daemon.waitForFinished();
    }
};

/// Runs the event loop until `done` answers true; false when it never does.
template <class Done>
bool WaitUntil(Done done) {
    const QDeadlineTimer limit(kLimitMs);
    while (!done() && !limit.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    }
    return done();
}

}  // namespace qt_tests

// Light and dark, as a portal on a bus of the test's own asks for it.
#include "adapters/qt/color_scheme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QPalette>

#include "test_bus.h"

namespace qt_tests {
namespace {

constexpr const char* kPath = "/org/freedesktop/portal/desktop";
constexpr const char* kInterface = "org.freedesktop.portal.Settings";

class Portal : public QDBusVirtualObject {
public:
    uint scheme = 0;
    QStringList asked;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        asked << message.member() + " " + message.arguments().value(1).toString();
        const QDBusVariant inner{QVariant(scheme)};
        return bus.send(
            message.createReply(QVariant::fromValue(QDBusVariant(QVariant::fromValue(inner)))));
    }
};

struct Scheme : testing::Test {
    TestBus daemon;
    QDBusConnection desktop = QDBusConnection::connectToBus(daemon.address, "portal");
    Portal portal;
    qt_adapter::SessionBus bus{daemon.address};
    const QColor light = QApplication::palette().window().color();

    void SetUp() override {
        ASSERT_GT(light.lightness(), 128) << "the test begins with light colours";
        ASSERT_TRUE(desktop.registerVirtualObject(kPath, &portal));
        ASSERT_TRUE(desktop.registerService("org.freedesktop.portal.Desktop"));
    }
    void TearDown() override { QDBusConnection::disconnectFromBus("portal"); }

    static bool Dark() { return QApplication::palette().window().color().lightness() < 64; }
    void Change(const QString& group, const QString& key, uint value) {
        QDBusMessage signal = QDBusMessage::createSignal(kPath, kInterface, "SettingChanged");
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        desktop.send(signal);
    }
};

TEST_F(Scheme, FollowsTheDesktopAtStartAndLater) {
    portal.scheme = 1;
    {
        const qt_adapter::ColorScheme colors(bus);
        EXPECT_TRUE(WaitUntil(Dark));
        EXPECT_EQ(portal.asked, QStringList{"Read color-scheme"});
        EXPECT_GT(QApplication::palette().windowText().color().lightness(), 200);
        Change("org.freedesktop.appearance", "color-scheme", 2);
        EXPECT_TRUE(WaitUntil([] { return !Dark(); }));
        EXPECT_EQ(QApplication::palette().window().color(), light);
        Change("org.freedesktop.appearance", "color-scheme", 1);
        EXPECT_TRUE(WaitUntil(Dark));
        Change("org.freedesktop.appearance", "accent-color", 0);
        Change("org.gnome.something", "color-scheme", 0);
        Change("org.freedesktop.appearance", "color-scheme", 1);
        QCoreApplication::processEvents(QEventLoop::AllEvents, 200);
        EXPECT_TRUE(Dark());
    }
    EXPECT_EQ(QApplication::palette().window().color(), light) << "it takes its colours with it";
}

TEST_F(Scheme, NoPreferenceKeepsTheToolkitsColours) {
    const qt_adapter::ColorScheme colors(bus);
    EXPECT_TRUE(WaitUntil([&] { return !portal.asked.isEmpty(); }));
    QCoreApplication::processEvents(QEventLoop::AllEvents, 200);
    EXPECT_EQ(QApplication::palette().window().color(), light);
}

}  // namespace
}  // namespace qt_tests

// Light and dark, as a portal on a bus of the test's own asks for it.
#include "adapters/qt/color_scheme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QPalette>
#include <algorithm>
#include <cmath>

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

/// Of selected text, as WCAG reckons it.
double SelectedContrast() {
    const auto luminance = [](const QColor& color) {
        const auto part = [](double value) {
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) +
               0.0722 * part(color.blueF());
    };
    const QPalette palette = QApplication::palette();
    const double one = luminance(palette.color(QPalette::Highlight)) + 0.05;
    const double other = luminance(palette.color(QPalette::HighlightedText)) + 0.05;
    return std::max(one, other) / std::min(one, other);
}

struct Scheme : testing::Test {
    TestBus daemon;
    QDBusConnection desktop = QDBusConnection::connectToBus(daemon.address, "portal");
    Portal portal;
    qt_adapter::SessionBus bus{daemon.address};
    const QColor light = QApplication::palette().window().color();
    const QColor highlight = QApplication::palette().highlight().color();

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
        EXPECT_GE(SelectedContrast(), 4.5);
        Change("org.freedesktop.appearance", "color-scheme", 2);
        EXPECT_TRUE(WaitUntil([] { return !Dark(); }));
        EXPECT_EQ(QApplication::palette().window().color(), light);
        EXPECT_GE(SelectedContrast(), 4.5);
        Change("org.freedesktop.appearance", "color-scheme", 1);
        EXPECT_TRUE(WaitUntil(Dark));
        Change("org.freedesktop.appearance", "accent-color", 0);
        Change("org.gnome.something", "color-scheme", 0);
        Change("org.freedesktop.appearance", "color-scheme", 1);
        QCoreApplication::processEvents(QEventLoop::AllEvents, 200);
        EXPECT_TRUE(Dark());
    }
    EXPECT_EQ(QApplication::palette().window().color(), light) << "it takes its colours with it";
    EXPECT_EQ(QApplication::palette().highlight().color(), highlight);
}

TEST_F(Scheme, NoPreferenceKeepsTheToolkitsColours) {
    const qt_adapter::ColorScheme colors(bus);
    EXPECT_TRUE(WaitUntil([&] { return !portal.asked.isEmpty(); }));
    QCoreApplication::processEvents(QEventLoop::AllEvents, 200);
    EXPECT_EQ(QApplication::palette().window().color(), light);
}

}  // namespace
}  // namespace qt_tests

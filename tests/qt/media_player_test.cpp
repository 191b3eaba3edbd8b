// The show as a player on the session bus: what the desktop reads, and what its keys press.
#include "adapters/qt/media_player.h"

#include <gtest/gtest.h>

#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QDialog>

#include "model/controls.h"
#include "model/windows/control_box.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"
#include "test_bus.h"

namespace qt_tests {
namespace {

constexpr const char* kService = "org.mpris.MediaPlayer2.parapico";
constexpr const char* kPath = "/org/mpris/MediaPlayer2";
constexpr const char* kPlayer = "org.mpris.MediaPlayer2.Player";
constexpr const char* kProperties = "org.freedesktop.DBus.Properties";

class Listener : public QObject {
    Q_OBJECT

public:
    QVariantMap changed;
    int signals_ = 0;

public slots:
    void Changed(const QString&, const QVariantMap& values, const QStringList&) {
        changed.insert(values);
        ++signals_;
    }
};

struct Player : testing::Test {
    TestBus daemon;
    QDBusConnection desktop = QDBusConnection::connectToBus(daemon.address, "desktop");
    model::Windows windows;
    model::Form1& form1 = windows.form1;
    qt_adapter::Gate gate;
    qt_adapter::SessionBus bus{daemon.address};
    std::unique_ptr<qt_adapter::MediaPlayer> player;
    QStringList pressed;
    Listener listener;

    void SetUp() override {
        for (model::Button* button : {&form1.Command1, &form1.Command2, &form1.Command3,
                                      &form1.Command5, &form1.Command7}) {
            button->Enabled = false;
            button->Click = [this, button] { pressed << button->Name().c_str(); };
        }
        for (model::Control* control : windows.slidescreen2.Controls()) {
            if (auto* button = dynamic_cast<model::Button*>(control)) {
                button->Click = [this, button] {
                    pressed << QString("box ") + button->Name().c_str();
                };
            }
        }
        form1.Visible = true;
        player = std::make_unique<qt_adapter::MediaPlayer>(windows, gate, bus);
        ASSERT_TRUE(
            WaitUntil([&] { return desktop.interface()->isServiceRegistered(kService).value(); }));
        desktop.connect(kService, kPath, kProperties, "PropertiesChanged", &listener,
                        SLOT(Changed(QString, QVariantMap, QStringList)));
    }
    void TearDown() override {
        player.reset();
        QDBusConnection::disconnectFromBus("desktop");
    }

    void Running() {
        form1.Command1.Enabled = false;
        form1.Command2.Enabled = true;
        form1.Command3.Enabled = true;
        form1.mnuOPTION.Enabled = false;
        form1.ShownSlide = 2;
        form1.Caption = u"夜明け.jpg";
    }
    void Paused() {
        Running();
        form1.Command1.Enabled = true;
        form1.Command2.Enabled = false;
        form1.Command5.Enabled = true;
        form1.Command7.Enabled = true;
    }
    /// The desktop asks without waiting, as this thread must answer.
    QDBusMessage Call(const QString& interface, const QString& method,
                      const QVariantList& arguments = {}) {
        QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, interface, method);
        call.setArguments(arguments);
        const QDBusPendingCall pending = desktop.asyncCall(call);
        EXPECT_TRUE(WaitUntil([&] { return pending.isFinished(); }));
        QCoreApplication::processEvents();
        return pending.reply();
    }
    QVariant Property(const QString& name) {
        const QDBusMessage reply = Call(kProperties, "Get", {kPlayer, name});
        return reply.arguments().value(0).value<QDBusVariant>().variant();
    }
    QVariantMap Metadata() { return qdbus_cast<QVariantMap>(Property("Metadata")); }
};

TEST_F(Player, SaysWhoItIs) {
    const QDBusMessage reply = Call(kProperties, "GetAll", {"org.mpris.MediaPlayer2"});
    const auto face = qdbus_cast<QVariantMap>(reply.arguments().value(0));
    EXPECT_EQ(face["Identity"].toString(), QStringLiteral("パラピコ"));
    EXPECT_EQ(face["DesktopEntry"].toString(), "parapico");
    EXPECT_FALSE(face["HasTrackList"].toBool());
}

TEST_F(Player, TellsHowTheShowStands) {
    EXPECT_EQ(Property("PlaybackStatus").toString(), "Stopped");
    EXPECT_FALSE(Metadata().contains("xesam:title"));
    Running();
    EXPECT_EQ(Property("PlaybackStatus").toString(), "Playing");
    EXPECT_EQ(Metadata()["xesam:title"].toString(), QStringLiteral("夜明け.jpg"));
    EXPECT_EQ(Metadata()["xesam:trackNumber"].toInt(), 2);
    EXPECT_TRUE(Property("CanPause").toBool());
    EXPECT_FALSE(Property("CanGoNext").toBool());
    Paused();
    EXPECT_EQ(Property("PlaybackStatus").toString(), "Paused");
    EXPECT_TRUE(Property("CanGoNext").toBool());
    EXPECT_TRUE(Property("CanGoPrevious").toBool());
    EXPECT_TRUE(Property("CanPlay").toBool());
}

TEST_F(Player, ManyChangesAreOneSignalWithOnlyWhatChanged) {
    Running();
    ASSERT_TRUE(WaitUntil([&] { return listener.signals_ > 0; }));
    EXPECT_EQ(listener.signals_, 1);
    EXPECT_EQ(listener.changed["PlaybackStatus"].toString(), "Playing");
    EXPECT_TRUE(listener.changed.contains("Metadata"));
    EXPECT_TRUE(listener.changed["CanPause"].toBool());
    EXPECT_FALSE(listener.changed.contains("CanGoNext"));
    listener.changed.clear();
    form1.ShownSlide = 3;  // the same picture once more: still another slide
    ASSERT_TRUE(WaitUntil([&] { return listener.signals_ > 1; }));
    EXPECT_EQ(listener.changed.keys(), QStringList{"Metadata"});
}

TEST_F(Player, KeysPressTheButtonsThatAPersonCouldPress) {
    form1.Command1.Enabled = true;
    Call(kPlayer, "Pause");  // nothing to pause
    Call(kPlayer, "Play");
    EXPECT_EQ(pressed.join(' '), "Command1");
    pressed.clear();
    Running();
    Call(kPlayer, "Next");  // not while it runs
    Call(kPlayer, "PlayPause");
    Call(kPlayer, "Stop");
    EXPECT_EQ(pressed.join(' '), "Command2 Command3");
    pressed.clear();
    Paused();
    Call(kPlayer, "Previous");
    Call(kPlayer, "Next");
    Call(kPlayer, "PlayPause");
    EXPECT_EQ(pressed.join(' '), "Command5 Command7 Command1");
}

TEST_F(Player, FullScreenHasButtonsOfItsOwn) {
    form1.Visible = false;
    windows.slidescreen.Visible = true;
    Running();
    Call(kPlayer, "Pause");
    Paused();
    for (const char* key : {"Previous", "Next", "Play", "Stop"}) {
        Call(kPlayer, key);
    }
    EXPECT_EQ(pressed.join(", "),
              "box Command3, box Command4, box Command5, box Command2, box Command1");
}

TEST_F(Player, NothingIsPressedUnderABoxOrWithoutAWindow) {
    Paused();
    QDialog box;
    box.setModal(true);
    box.show();
    Call(kPlayer, "Play");
    box.hide();
    form1.Visible = false;
    Call(kPlayer, "Play");
    EXPECT_TRUE(pressed.isEmpty());
}

TEST_F(Player, StrangeCallsGetAnErrorAndChangeNothing) {
    EXPECT_EQ(Call(kPlayer, "Explode").type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(Call(kPlayer, "OpenUri", {"file:///x"}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(Call(kProperties, "Get", {kPlayer, "Nothing"}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(Call(kProperties, "Get").type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(Call(kProperties, "GetAll", {7}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(Call(kPlayer, "Seek", {qlonglong(5)}).type(), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(pressed.isEmpty());
}

TEST_F(Player, ASecondProgramTakesANameOfItsOwn) {
    qt_adapter::SessionBus other{daemon.address};
    const qt_adapter::MediaPlayer second(windows, gate, other);
    const QString name =
        QStringLiteral("%1.instance%2").arg(kService).arg(QCoreApplication::applicationPid());
    EXPECT_TRUE(WaitUntil([&] { return desktop.interface()->isServiceRegistered(name).value(); }));
}

TEST(SessionBus, TellsEveryoneOnceWhetherEarlyOrLate) {
    TestBus daemon;
    qt_adapter::SessionBus bus(daemon.address);
    QObject early, late;
    int earlyTold = 0, lateTold = 0;
    bus.WhenConnected(early, [&](const QDBusConnection& connection) {
        ++earlyTold;
        EXPECT_TRUE(connection.isConnected());
    });
    ASSERT_TRUE(WaitUntil([&] { return earlyTold > 0; }));
    bus.WhenConnected(late, [&](const QDBusConnection&) { ++lateTold; });
    EXPECT_TRUE(WaitUntil([&] { return lateTold > 0; }));
    QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    EXPECT_EQ(earlyTold, 1);
    EXPECT_EQ(lateTold, 1);
}

TEST(MediaPlayer, WithoutABusNothingHappens) {
    model::Windows windows;
    qt_adapter::Gate gate;
    qt_adapter::SessionBus bus("unix:path=/nowhere/at/all");
    qt_adapter::MediaPlayer player(windows, gate, bus);
    windows.form1.Caption = u"x";
    QCoreApplication::processEvents();
}

}  // namespace
}  // namespace qt_tests

#include "media_player_test.moc"

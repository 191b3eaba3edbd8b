#include "adapters/qt/media_player.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <algorithm>

#include "adapters/qt/convert.h"
#include "model/controls.h"
#include "model/windows/control_box.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"

namespace qt_adapter {

namespace {

constexpr const char* kPath = "/org/mpris/MediaPlayer2";
constexpr const char* kService = "org.mpris.MediaPlayer2.parapico";
constexpr const char* kRoot = "org.mpris.MediaPlayer2";
constexpr const char* kPlayer = "org.mpris.MediaPlayer2.Player";
constexpr const char* kProperties = "org.freedesktop.DBus.Properties";

constexpr const char* kTrackId = "mpris:trackid";

constexpr uint kDoNotQueue = 4;  // of RequestName
constexpr uint kNameTaken = 3;

constexpr const char* kIntrospection = R"(
<interface name="org.mpris.MediaPlayer2">
 <method name="Raise"/><method name="Quit"/>
 <property name="CanQuit" type="b" access="read"/>
 <property name="CanRaise" type="b" access="read"/>
 <property name="HasTrackList" type="b" access="read"/>
 <property name="Identity" type="s" access="read"/>
 <property name="DesktopEntry" type="s" access="read"/>
 <property name="SupportedUriSchemes" type="as" access="read"/>
 <property name="SupportedMimeTypes" type="as" access="read"/>
</interface>
<interface name="org.mpris.MediaPlayer2.Player">
 <method name="Next"/><method name="Previous"/><method name="Pause"/><method name="PlayPause"/>
 <method name="Stop"/><method name="Play"/>
 <method name="Seek"><arg name="Offset" type="x" direction="in"/></method>
 <method name="SetPosition">
  <arg name="TrackId" type="o" direction="in"/><arg name="Position" type="x" direction="in"/>
 </method>
 <method name="OpenUri"><arg name="Uri" type="s" direction="in"/></method>
 <signal name="Seeked"><arg name="Position" type="x"/></signal>
 <property name="PlaybackStatus" type="s" access="read"/>
 <property name="Rate" type="d" access="readwrite"/>
 <property name="MinimumRate" type="d" access="read"/>
 <property name="MaximumRate" type="d" access="read"/>
 <property name="Metadata" type="a{sv}" access="read"/>
 <property name="Volume" type="d" access="readwrite"/>
 <property name="Position" type="x" access="read"/>
 <property name="CanGoNext" type="b" access="read"/>
 <property name="CanGoPrevious" type="b" access="read"/>
 <property name="CanPlay" type="b" access="read"/>
 <property name="CanPause" type="b" access="read"/>
 <property name="CanSeek" type="b" access="read"/>
 <property name="CanControl" type="b" access="read"/>
</interface>
)";

/// What a command presses. The main window's button says whether it may; while the full screen is
/// up, its box's button does it.
struct Key {
    const char* command;
    model::Button model::Form1::*inWindow;
    model::Button model::Slidescreen2::*inBox;
};

constexpr Key kKeys[] = {
    {"Play", &model::Form1::Command1, &model::Slidescreen2::Command2},
    {"Pause", &model::Form1::Command2, &model::Slidescreen2::Command3},
    {"Stop", &model::Form1::Command3, &model::Slidescreen2::Command1},
    {"Previous", &model::Form1::Command5, &model::Slidescreen2::Command4},
    {"Next", &model::Form1::Command7, &model::Slidescreen2::Command5},
};

/// Taken and done nothing about: no place within a slide can be sought.
constexpr const char* kIdleCommands[] = {"Seek", "SetPosition", "Raise", "Quit"};

bool ShowUnderWay(const model::Form1& form1) {
    return !form1.mnuOPTION.Enabled;  // START turns it off, the end of the show on
}

QString Status(const model::Form1& form1) {
    if (!ShowUnderWay(form1)) {
        return QStringLiteral("Stopped");
    }
    return form1.Command1.Enabled ? QStringLiteral("Paused") : QStringLiteral("Playing");
}

QVariantMap Metadata(const model::Form1& form1) {
    const int slide = ShowUnderWay(form1) ? form1.ShownSlide() : 0;
    if (slide == 0) {
        return {{kTrackId, QVariant::fromValue(
                               QDBusObjectPath("/org/mpris/MediaPlayer2/TrackList/NoTrack"))}};
    }
    return {{kTrackId,
             QVariant::fromValue(QDBusObjectPath(QStringLiteral("/parapico/slide/%1").arg(slide)))},
            {"xesam:title", ToQt(form1.Caption())},
            {"xesam:trackNumber", slide}};
}

QDBusMessage RequestName(const QString& name) {
    return QDBusMessage::createMethodCall("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                          "org.freedesktop.DBus", "RequestName")
           << name << kDoNotQueue;
}

/// Without what cannot be compared: object paths, which follow the rest.
QVariant Comparable(const QVariant& value) {
    if (value.metaType() != QMetaType::fromType<QVariantMap>()) {
        return value;
    }
    QVariantMap map = value.toMap();
    map.remove(kTrackId);
    return map;
}

const QVariantMap& RootFace() {
    static const QVariantMap face{
        {"CanQuit", false},
        {"CanRaise", false},
        {"HasTrackList", false},
        {"Identity", QStringLiteral("パラピコ")},
        {"DesktopEntry", QStringLiteral("parapico")},
        {"SupportedUriSchemes", QStringList()},
        {"SupportedMimeTypes", QStringList()},
    };
    return face;
}

}  // namespace

MediaPlayer::MediaPlayer(model::Windows& windows, Gate& gate, SessionBus& bus)
    : windows_(windows), gate_(gate) {
    for (model::Control* sign : Signs()) {
        sign->Listen(this);
    }
    bus.WhenConnected(*this, [this](QDBusConnection connection) { Appear(std::move(connection)); });
}

MediaPlayer::~MediaPlayer() {
    for (model::Control* sign : Signs()) {
        sign->Unlisten(this);
    }
    if (!connection_.isEmpty()) {
        QDBusConnection(connection_).unregisterObject(kPath);
    }
}

std::vector<model::Control*> MediaPlayer::Signs() {
    model::Form1& form1 = windows_.form1;
    return {&form1,          &form1.mnuOPTION, &form1.Command1, &form1.Command2,
            &form1.Command3, &form1.Command5,  &form1.Command7};
}

void MediaPlayer::Appear(QDBusConnection bus) {
    connection_ = bus.name();
    told_ = PlayerFace();
    bus.registerVirtualObject(kPath, this, QDBusConnection::SingleNode);
    auto* first = new QDBusPendingCallWatcher(bus.asyncCall(RequestName(kService)), this);
    connect(first, &QDBusPendingCallWatcher::finished, this, [bus, first] {
        const QDBusPendingReply<uint> reply = *first;
        if (reply.isValid() && reply.value() == kNameTaken) {
            // A program beside the first one takes a name of its own.
            bus.asyncCall(RequestName(QStringLiteral("%1.instance%2")
                                          .arg(kService)
                                          .arg(QCoreApplication::applicationPid())));
        }
        first->deleteLater();
    });
}

QString MediaPlayer::introspect(const QString&) const {
    return QString::fromLatin1(kIntrospection);
}

void MediaPlayer::PropertyChanged(model::Control&, model::PropertyBase&) {
    if (!connection_.isEmpty() && !tellQueued_) {
        // Many changes, one signal.
        tellQueued_ = true;
        QMetaObject::invokeMethod(
            this, [this] { TellChanges(); }, Qt::QueuedConnection);
    }
}

QVariantMap MediaPlayer::PlayerFace() const {
    const model::Form1& form1 = windows_.form1;
    return {
        {"PlaybackStatus", Status(form1)},
        {"Rate", 1.0},
        {"MinimumRate", 1.0},
        {"MaximumRate", 1.0},
        {"Metadata", Metadata(form1)},
        {"Volume", 1.0},
        {"Position", qlonglong(0)},
        {"CanGoNext", form1.Command7.Enabled()},
        {"CanGoPrevious", form1.Command5.Enabled()},
        {"CanPlay", form1.Command1.Enabled()},
        {"CanPause", form1.Command2.Enabled()},
        {"CanSeek", false},
        {"CanControl", true},
    };
}

void MediaPlayer::TellChanges() {
    tellQueued_ = false;
    const QVariantMap now = PlayerFace();
    QVariantMap changed;
    for (auto entry = now.begin(); entry != now.end(); ++entry) {
        const bool same = Comparable(entry.value()) == Comparable(told_.value(entry.key()));
        if (!same) {
            changed.insert(entry.key(), entry.value());
        }
    }
    told_ = now;
    if (!changed.isEmpty()) {
        QDBusMessage signal =
            QDBusMessage::createSignal(kPath, kProperties, QStringLiteral("PropertiesChanged"));
        signal << QString(kPlayer) << changed << QStringList();
        QDBusConnection(connection_).send(signal);
    }
}

void MediaPlayer::Press(const QString& command) {
    const bool seen = windows_.form1.Visible || windows_.slidescreen.Visible;
    if (!seen || QApplication::activeModalWidget()) {
        return;
    }
    for (const Key& key : kKeys) {
        if (command == key.command && (windows_.form1.*key.inWindow).Enabled) {
            if (windows_.slidescreen.Visible) {
                (windows_.slidescreen2.*key.inBox).Click();
            } else {
                (windows_.form1.*key.inWindow).Click();
            }
            return;
        }
    }
}

bool MediaPlayer::handleMessage(const QDBusMessage& message, const QDBusConnection& bus) {
    const QList<QVariant> arguments = message.arguments();
    const QString group = arguments.value(0).toString();
    const QVariantMap face = group == kPlayer ? PlayerFace()
                             : group == kRoot ? RootFace()
                                              : QVariantMap();
    const QString member = message.member();
    if (message.interface() == kProperties) {
        const QString name = arguments.value(1).toString();
        if (member == "GetAll" && !face.isEmpty()) {
            return bus.send(message.createReply(face));
        }
        if (member == "Get" && face.contains(name)) {
            return bus.send(
                message.createReply(QVariant::fromValue(QDBusVariant(face.value(name)))));
        }
        if (member == "Set" && face.contains(name)) {
            return bus.send(message.createErrorReply(QDBusError::PropertyReadOnly, name));
        }
        return false;
    }
    QString command = member;
    if (command == "PlayPause") {
        command = Status(windows_.form1) == "Playing" ? "Pause" : "Play";
    }
    const bool known = std::any_of(std::begin(kKeys), std::end(kKeys),
                                   [&](const Key& key) { return command == key.command; }) ||
                       std::any_of(std::begin(kIdleCommands), std::end(kIdleCommands),
                                   [&](const char* idle) { return command == idle; });
    if (!known) {
        return false;
    }
    bus.send(message.createReply());
    // Later: a step may last as long as its picture's effect, and nested calls must not pile up.
    QMetaObject::invokeMethod(
        this, [this, command] { gate_.Guarded([&] { Press(command); }); }, Qt::QueuedConnection);
    return true;
}

}  // namespace qt_adapter

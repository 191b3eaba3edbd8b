#include "adapters/qt/color_scheme.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QPalette>
#include <QStyle>

namespace qt_adapter {

namespace {

constexpr const char* kService = "org.freedesktop.portal.Desktop";
constexpr const char* kPath = "/org/freedesktop/portal/desktop";
constexpr const char* kInterface = "org.freedesktop.portal.Settings";
constexpr const char* kGroup = "org.freedesktop.appearance";
constexpr const char* kKey = "color-scheme";

constexpr uint kPreferDark = 1;  // 0 no preference, 2 light

constexpr int kDarkBelow = 128;  // of 255

struct RoleColor {
    QPalette::ColorRole role;
    QRgb color;
};

constexpr RoleColor kDark[] = {
    {QPalette::Window, 0xFF2B2B2E},
    {QPalette::WindowText, 0xFFECECEC},
    {QPalette::Base, 0xFF1F1F22},
    {QPalette::AlternateBase, 0xFF262629},
    {QPalette::Text, 0xFFECECEC},
    {QPalette::Button, 0xFF3A3A3E},
    {QPalette::ButtonText, 0xFFECECEC},
    {QPalette::BrightText, 0xFFFF6B6B},
    {QPalette::Light, 0xFF4C4C51},
    {QPalette::Midlight, 0xFF424247},
    {QPalette::Mid, 0xFF5A5A60},
    {QPalette::Dark, 0xFF19191B},
    {QPalette::Shadow, 0xFF000000},
    {QPalette::Highlight, 0xFF3D8BD9},
    {QPalette::HighlightedText, 0xFFFFFFFF},
    {QPalette::Link, 0xFF6CB2F7},
    {QPalette::LinkVisited, 0xFFB79CF0},
    {QPalette::ToolTipBase, 0xFF3A3A3E},
    {QPalette::ToolTipText, 0xFFECECEC},
    {QPalette::PlaceholderText, 0xFF8A8A90},
};

constexpr RoleColor kDarkDisabled[] = {
    {QPalette::WindowText, 0xFF77777C},      {QPalette::Text, 0xFF77777C},
    {QPalette::ButtonText, 0xFF77777C},      {QPalette::Highlight, 0xFF4C4C51},
    {QPalette::HighlightedText, 0xFF9A9A9F},
};

constexpr QRgb kDarkMarkGround = 0xFF5A5A60;

QPalette DarkPalette() {
    QPalette palette;
    for (const RoleColor& row : kDark) {
        palette.setColor(row.role, QColor(row.color));
    }
    for (const RoleColor& row : kDarkDisabled) {
        palette.setColor(QPalette::Disabled, row.role, QColor(row.color));
    }
    return palette;
}

/// The answer is wrapped once or twice, by the portal's age.
QVariant Unwrapped(QVariant value) {
    while (value.metaType() == QMetaType::fromType<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

}  // namespace

ColorScheme::ColorScheme(SessionBus& bus) {
    bus.WhenConnected(*this, [this](QDBusConnection connection) { Ask(std::move(connection)); });
}

ColorScheme::~ColorScheme() {
    SetDark(false);
}

void ColorScheme::Ask(QDBusConnection bus) {
    // Known by its name only once it was used, and the slot is found by names.
    qRegisterMetaType<QDBusVariant>();
    bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                SLOT(SettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kInterface, "Read");
    call << QString(kGroup) << QString(kKey);
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid()) {
            Follow(QVariant::fromValue(reply.value()));
        }
        watcher->deleteLater();
    });
}

void ColorScheme::SettingChanged(const QString& group, const QString& key,
                                 const QDBusVariant& value) {
    if (group == kGroup && key == kKey) {
        Follow(QVariant::fromValue(value));
    }
}

void ColorScheme::Follow(const QVariant& scheme) {
    SetDark(Unwrapped(scheme).toUInt() == kPreferDark);
}

void ColorScheme::SetDark(bool dark) {
    const bool given = QApplication::palette().window().color().lightness() < kDarkBelow;
    if (dark == dark_ || (dark && given)) {
        return;
    }
    dark_ = dark;
    QApplication::setPalette(dark ? DarkPalette() : QPalette());
    // Their outlines are darker than the window: on a dark one the box itself must be seen.
    for (const char* marked : {"QCheckBox", "QRadioButton"}) {
        QPalette palette = QApplication::palette();
        if (dark) {
            palette.setColor(QPalette::Base, QColor(kDarkMarkGround));
        }
        QApplication::setPalette(palette, marked);
    }
}

}  // namespace qt_adapter

#include "adapters/qt/color_scheme.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QPalette>
#include <QStyle>
#include <algorithm>
#include <cmath>

namespace qt_adapter {

namespace {

constexpr const char* kService = "org.freedesktop.portal.Desktop";
constexpr const char* kPath = "/org/freedesktop/portal/desktop";
constexpr const char* kInterface = "org.freedesktop.portal.Settings";
constexpr const char* kGroup = "org.freedesktop.appearance";
constexpr const char* kKey = "color-scheme";

constexpr uint kPreferDark = 1;  // 0 no preference, 2 light

constexpr int kDarkBelow = 128;         // of 255
constexpr double kLeastContrast = 4.5;  // of selected text

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
    {QPalette::Highlight, 0xFF2E6FB4},
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

/// Of WCAG: from 1 to 21.
double Contrast(const QColor& one, const QColor& other) {
    const auto luminance = [](const QColor& color) {
        const auto part = [](double value) {
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) +
               0.0722 * part(color.blueF());
    };
    const double first = luminance(one), second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

/// The toolkit's own colours; only a highlight that is too light for the text on it becomes darker.
void TakeOwnColors() {
    constexpr int kDarker = 104;  // per cent
    QApplication::setPalette(QPalette());
    const QPalette given = QApplication::palette();
    const QColor text = given.color(QPalette::HighlightedText);
    QColor ground = given.color(QPalette::Highlight);
    if (text.lightness() < kDarkBelow || Contrast(text, ground) >= kLeastContrast) {
        return;
    }
    while (Contrast(text, ground) < kLeastContrast && ground.lightness() > 0) {
        ground = ground.darker(kDarker);
    }
    QPalette palette;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Highlight, ground);
    }
    QApplication::setPalette(palette);
}

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
    TakeOwnColors();
    bus.WhenConnected(*this, [this](QDBusConnection connection) { Ask(std::move(connection)); });
}

ColorScheme::~ColorScheme() {
    SetDark(false);
    QApplication::setPalette(QPalette());
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
    if (dark) {
        QApplication::setPalette(DarkPalette());
    } else {
        TakeOwnColors();
    }
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

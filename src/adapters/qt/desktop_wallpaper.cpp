#include "adapters/qt/desktop_wallpaper.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <optional>

#include "adapters/qt/session_bus.h"

namespace qt_adapter {

namespace {

constexpr int kLimitMs = 5000;

/// What a command printed; nullopt where it is missing, failed or hung.
std::optional<QString> Run(const QStringList& command) {
    if (QStandardPaths::findExecutable(command.front()).isEmpty()) {
        return std::nullopt;
    }
    QProcess process;
    process.start(command.front(), command.mid(1));
    if (!process.waitForFinished(kLimitMs)) {
        process.kill();
        process.waitForFinished(kLimitMs);
        return std::nullopt;
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        return std::nullopt;
    }
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

/// A setting that holds the wallpaper, read and written by commands. "%" stands for the value.
struct Setting {
    QStringList read;  // empty: it cannot be read
    QStringList write;
    bool asUrl = false;
};

Setting GSetting(const QString& schema, const QString& key, bool asUrl) {
    return {{"gsettings", "get", schema, key}, {"gsettings", "set", schema, key, "%"}, asUrl};
}

struct Desktop {
    const char* name;  // a part of $XDG_CURRENT_DESKTOP
    std::vector<Setting> (*settings)();
};

/// Every monitor and workspace has a setting of its own.
std::vector<Setting> XfceSettings() {
    std::vector<Setting> settings;
    const QStringList channel{"xfconf-query", "-c", "xfce4-desktop"};
    for (const QString& name : Run(channel + QStringList{"-l"}).value_or(QString()).split('\n')) {
        if (name.endsWith("/last-image")) {
            settings.push_back(
                {channel + QStringList{"-p", name}, channel + QStringList{"-p", name, "-s", "%"}});
        }
    }
    return settings;
}

const Desktop kDesktops[] = {
    {"cinnamon",
     [] { return std::vector{GSetting("org.cinnamon.desktop.background", "picture-uri", true)}; }},
    {"mate",
     [] { return std::vector{GSetting("org.mate.background", "picture-filename", false)}; }},
    {"xfce", XfceSettings},
    {"kde",
     [] {
         return std::vector{Setting{{}, {"plasma-apply-wallpaperimage", "%"}}};
     }},
    {"gnome",
     [] {
         return std::vector{GSetting("org.gnome.desktop.background", "picture-uri", true),
                            GSetting("org.gnome.desktop.background", "picture-uri-dark", true)};
     }},
    {"unity",
     [] { return std::vector{GSetting("org.gnome.desktop.background", "picture-uri", true)}; }},
};

std::vector<Setting> SettingsOfDesktop() {
    const QString present = qEnvironmentVariable("XDG_CURRENT_DESKTOP").toLower();
    for (const Desktop& desktop : kDesktops) {
        if (present.contains(desktop.name)) {
            return desktop.settings();
        }
    }
    if (present.isEmpty() && qEnvironmentVariableIsSet("DISPLAY")) {
        return {{{}, {"feh", "--no-fehbg", "--bg-fill", "%"}}};
    }
    return {};
}

QStringList WithValue(QStringList command, const QString& value) {
    command.replaceInStrings(QStringLiteral("%"), value);
    return command;
}

/// Values come back in quotes, as the settings' own notation has them.
QString Plain(QString value) {
    if (value.size() >= 2 && value.startsWith('\'') && value.endsWith('\'')) {
        value = value.mid(1, value.size() - 2);
    }
    return value;
}

bool AskPortal(const QString& url) {
    if (!HasSessionBus()) {
        return false;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"),
        QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Wallpaper"), QStringLiteral("SetWallpaperURI"));
    call << QString() << url
         << QVariantMap{{QStringLiteral("set-on"), QStringLiteral("background")},
                        {QStringLiteral("show-preview"), false}};
    return QDBusConnection::sessionBus().call(call, QDBus::Block, kLimitMs).type() ==
           QDBusMessage::ReplyMessage;
}

}  // namespace

bool DesktopWallpaper::Set(TextView file, bool lasting, platform::FileError& error) {
    const std::optional<std::string> found = files_.Find(file);
    if (!found) {
        error.message = u"ファイルが見つかりません。";
        return false;
    }
    const QString path = QString::fromStdString(*found);
    const QString url = QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
    std::vector<QStringList> before;
    bool done = false;
    for (const Setting& setting : SettingsOfDesktop()) {
        const auto present = setting.read.isEmpty() ? std::nullopt : Run(setting.read);
        if (Run(WithValue(setting.write, setting.asUrl ? url : path))) {
            done = true;
            if (present) {
                before.push_back(WithValue(setting.write, Plain(*present)));
            }
        }
    }
    if (!done && !AskPortal(url)) {
        error.message = u"このデスクトップの壁紙は変更できません。";
        return false;
    }
    if (lasting) {
        before_.clear();
    } else if (before_.empty()) {
        before_ = std::move(before);
    }
    return true;
}

void DesktopWallpaper::PutBack() {
    for (const QStringList& command : before_) {
        Run(command);
    }
    before_.clear();
}

}  // namespace qt_adapter

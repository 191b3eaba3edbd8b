// Light or dark, as the desktop wants it.
#pragma once

#include <QDBusVariant>
#include <QObject>

#include "adapters/qt/session_bus.h"

namespace qt_adapter {

/// Asks the desktop's portal, over the session bus, whether it prefers dark windows, and follows
/// when it changes its mind. A toolkit that was given dark colours by the desktop keeps them, as it
/// does where no portal answers.
class ColorScheme : public QObject {
    Q_OBJECT

public:
    explicit ColorScheme(SessionBus& bus);
    /// The toolkit's own colours come back.
    ~ColorScheme() override;

private slots:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void Ask(QDBusConnection bus);
    void Follow(const QVariant& scheme);
    void SetDark(bool dark);

    bool dark_ = false;
};

}  // namespace qt_adapter

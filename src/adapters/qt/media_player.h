// The desktop's media keys and media panels: the show as a player on the session bus (MPRIS).
#pragma once

#include <QDBusVirtualObject>
#include <QVariantMap>

#include "adapters/qt/gate.h"
#include "adapters/qt/session_bus.h"
#include "model/windows.h"

namespace qt_adapter {

/// A command presses the button that a person would press: the full screen's box has its own. What
/// the desktop shows is read from the main window's buttons and caption. Nothing happens while a
/// box waits for an answer, or while neither the main window nor the full screen is up.
class MediaPlayer : public QDBusVirtualObject, public model::Listener {
public:
    /// The windows and the gate must outlive the player.
    MediaPlayer(model::Windows& windows, Gate& gate, SessionBus& bus);
    ~MediaPlayer() override;

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override;
    void PropertyChanged(model::Control& control, model::PropertyBase& property) override;

private:
    std::vector<model::Control*> Signs();
    void Appear(QDBusConnection bus);
    void TellChanges();
    void Press(const QString& command);
    QVariantMap PlayerFace() const;

    model::Windows& windows_;
    Gate& gate_;
    QString connection_;  // name; empty until connected
    QVariantMap told_;
    bool tellQueued_ = false;
};

}  // namespace qt_adapter

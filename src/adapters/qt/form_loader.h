// Makes a window's widgets from its form. Forms lie in the resources under their window's name.
#pragma once

#include <QString>
#include <QStringList>
#include <QUiLoader>
#include <string>

#include "platform/video.h"

namespace qt_adapter {

/// Object name of a control: "Picture2_3" for "Picture2(3)".
QString WidgetName(const std::string& controlName);

/// Widgets of installed designer plug-ins are no part of this program's forms, but the toolkit's
/// loader loads them all, with the libraries they need, as soon as it is made. This is made ahead
/// of it, so that it looks nowhere.
struct PluginsAside {
    PluginsAside();
    QStringList paths;
};

class FormLoader : private PluginsAside, public QUiLoader {
public:
    /// `video`: what the players of forms show; null: nothing.
    explicit FormLoader(platform::Video* video);
    static bool HasForm(const std::string& windowName);
    /// The form's widgets without a parent; null when the form is missing or broken.
    QWidget* Make(const std::string& windowName);

protected:
    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override;

private:
    platform::Video* video_;
};

}  // namespace qt_adapter

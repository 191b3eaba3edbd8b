#include "adapters/qt/form_loader.h"

#include <QCoreApplication>
#include <QFile>

#include "adapters/qt/canvas_widget.h"
#include "adapters/qt/face_view.h"
#include "adapters/qt/image_widget.h"
#include "adapters/qt/panes_binding.h"
#include "adapters/qt/sound_slider.h"
#include "adapters/qt/stage_widget.h"
#include "adapters/qt/video_widget.h"

namespace qt_adapter {

namespace {

QString FormPath(const std::string& windowName) {
    return QStringLiteral(":/windows/%1.ui").arg(QString::fromStdString(windowName));
}

}  // namespace

QString WidgetName(const std::string& controlName) {
    QString name = QString::fromStdString(controlName);
    return name.replace('(', '_').remove(')');
}

PluginsAside::PluginsAside() : paths(QCoreApplication::libraryPaths()) {
    QCoreApplication::setLibraryPaths({});
}

FormLoader::FormLoader(platform::Video* video) : video_(video) {
    QCoreApplication::setLibraryPaths(paths);
}

bool FormLoader::HasForm(const std::string& windowName) {
    return QFile::exists(FormPath(windowName));
}

QWidget* FormLoader::Make(const std::string& windowName) {
    QFile file(FormPath(windowName));
    return file.open(QIODevice::ReadOnly) ? load(&file) : nullptr;
}

QWidget* FormLoader::createWidget(const QString& className, QWidget* parent, const QString& name) {
    QWidget* widget = nullptr;
    if (className == "CanvasWidget") {
        widget = new CanvasWidget(parent);
    } else if (className == "ImageWidget") {
        widget = new ImageWidget(parent);
    } else if (className == "StageWidget") {
        widget = new StageWidget(parent);
    } else if (className == "FaceView") {
        widget = new FaceView(parent);
    } else if (className == "SoundSlider") {
        widget = new SoundSlider(parent);
    } else if (className == "QSplitter") {
        widget = new PaneSplitter(parent);
    } else if (className == "VideoWidget") {
        widget = new VideoWidget(video_, parent);
    } else {
        return QUiLoader::createWidget(className, parent, name);
    }
    widget->setObjectName(name);
    return widget;
}

}  // namespace qt_adapter

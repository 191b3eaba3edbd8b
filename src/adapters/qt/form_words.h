// Dynamic properties of a form's widgets that hold words.
#pragma once

#include <QObject>
#include <QStringList>
#include <QVariant>

namespace qt_adapter {

inline QStringList Words(const QObject& object, const char* property) {
    return object.property(property).toString().split(' ', Qt::SkipEmptyParts);
}

}  // namespace qt_adapter

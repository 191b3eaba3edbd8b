// Between the program's text and the toolkit's, both UTF-16.
#pragma once

#include <QString>

#include "platform/monitors.h"
#include "text/text.h"

namespace qt_adapter {

inline QString ToQt(TextView value) {
    return QString::fromUtf16(value.data(), static_cast<qsizetype>(value.size()));
}

inline Text FromQt(const QString& value) {
    return Text(reinterpret_cast<const char16_t*>(value.utf16()),
                static_cast<size_t>(value.size()));
}

inline int ToPixels(int twips) {
    return twips / platform::kTwipsPerPixel;
}

}  // namespace qt_adapter

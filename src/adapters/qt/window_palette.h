// Colours of the desktop, which change while windows stand.
#pragma once

#include <QWidget>

namespace qt_adapter {

/// The window takes the application's new colours, also where widgets have style sheets.
void TakeNewColors(QWidget& window);

}  // namespace qt_adapter

#include "adapters/qt/window_palette.h"

namespace qt_adapter {

// Widgets with a style sheet keep the colours they were made with, until the sheet is set again.
void TakeNewColors(QWidget& window) {
    QList<QWidget*> widgets = window.findChildren<QWidget*>();
    widgets += &window;
    for (QWidget* widget : widgets) {
        const QString sheet = widget->styleSheet();
        if (!sheet.isEmpty()) {
            widget->setStyleSheet(QString());
            widget->setStyleSheet(sheet);
        }
    }
}

}  // namespace qt_adapter

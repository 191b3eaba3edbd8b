#include "adapters/qt/stage_widget.h"

#include <QChildEvent>
#include <QPainter>
#include <QResizeEvent>

namespace qt_adapter {

namespace {

constexpr double kCornerRadius = 8;

}  // namespace

StageWidget::StageWidget(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
}

bool StageWidget::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        Centre(*static_cast<QWidget*>(watched));
    }
    return false;
}

void StageWidget::childEvent(QChildEvent* event) {
    if (!event->child()->isWidgetType()) {
        return;
    }
    if (event->added()) {
        event->child()->installEventFilter(this);
    } else if (event->removed()) {
        event->child()->removeEventFilter(this);
    }
}

void StageWidget::resizeEvent(QResizeEvent*) {
    for (QWidget* child : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        Centre(*child);
    }
}

void StageWidget::paintEvent(QPaintEvent*) {
    // The same in light and dark surroundings: pictures look best on black.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(rect(), kCornerRadius, kCornerRadius);
}

void StageWidget::Centre(QWidget& child) {
    child.move((width() - child.width()) / 2, (height() - child.height()) / 2);
}

}  // namespace qt_adapter

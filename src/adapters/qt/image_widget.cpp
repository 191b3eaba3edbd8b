#include "adapters/qt/image_widget.h"

#include <QImage>
#include <QMouseEvent>
#include <QPainter>

namespace qt_adapter {

namespace {

model::MousePress PressOf(const QMouseEvent& event) {
    return {event.button() == Qt::RightButton, event.pos().x(), event.pos().y()};
}

bool IsOurs(const QMouseEvent& event) {
    return event.button() == Qt::LeftButton || event.button() == Qt::RightButton;
}

}  // namespace

ImageWidget::~ImageWidget() {
    if (image_) {
        image_->Refresh = nullptr;
    }
}

void ImageWidget::Attach(model::Image& image, Gate& gate) {
    image_ = &image;
    gate_ = &gate;
    image.Refresh = [this] { update(); };
}

void ImageWidget::paintEvent(QPaintEvent*) {
    const platform::BitmapPtr picture = image_ ? image_->Picture() : nullptr;
    if (!picture || picture->Empty()) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QImage pixels(
        reinterpret_cast<const uchar*>(picture->pixels.data()), picture->width, picture->height,
        picture->width * static_cast<qsizetype>(sizeof(platform::Pixel)), QImage::Format_RGB32);
    painter.drawImage(rect(), pixels);
}

void ImageWidget::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(image_ && IsOurs(*event));
    second_ = event->type() == QEvent::MouseButtonDblClick;
    if (event->isAccepted()) {
        gate_->Guarded([&] { image_->HoldDown(PressOf(*event)); });
    }
}

void ImageWidget::mouseMoveEvent(QMouseEvent* event) {
    if (image_) {
        const bool right = event->buttons().testFlag(Qt::RightButton);
        gate_->Guarded([&] { image_->Drag({right, event->pos().x(), event->pos().y()}); });
    }
}

void ImageWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (!image_ || !IsOurs(*event)) {
        return;
    }
    const bool inside = rect().contains(event->pos());
    const bool right = event->button() == Qt::RightButton;
    const bool again = second_ && inside && !right && image_->DblClick;
    second_ = false;
    gate_->Guarded([&] {
        if (again) {
            image_->PressAgain(PressOf(*event));
        } else {
            image_->Release(PressOf(*event), inside);
        }
    });
}

}  // namespace qt_adapter

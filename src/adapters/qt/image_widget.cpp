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
    if (event->isAccepted()) {
        gate_->Guarded([&] { image_->HoldDown(PressOf(*event)); });
    }
}

void ImageWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (image_ && IsOurs(*event)) {
        const bool inside = rect().contains(event->pos());
        gate_->Guarded([&] { image_->Release(PressOf(*event), inside); });
    }
}

}  // namespace qt_adapter

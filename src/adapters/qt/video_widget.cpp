#include "adapters/qt/video_widget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <cmath>

#include "adapters/qt/virtual_keys.h"
#include "platform/monitors.h"

namespace qt_adapter {

VideoWidget::VideoWidget(platform::Video* video, QWidget* parent) : QWidget(parent), video_(video) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    if (video_) {
        video_->onFrame = [this] { update(); };
    }
}

VideoWidget::~VideoWidget() {
    if (video_) {
        video_->onFrame = nullptr;
    }
}

void VideoWidget::Attach(model::Player& player, Gate& gate) {
    player_ = &player;
    gate_ = &gate;
}

/// The film's part of the widget, in the monitor's pixels: all of it but where the model says less.
QSize VideoWidget::Room() const {
    const double ratio = devicePixelRatioF();
    const QSize whole(static_cast<int>(std::lround(width() * ratio)),
                      static_cast<int>(std::lround(height() * ratio)));
    if (!player_ || player_->Width == 0 || player_->Height == 0) {
        return whole;
    }
    return whole.boundedTo(
        {player_->Width / platform::kTwipsPerPixel, player_->Height / platform::kTwipsPerPixel});
}

void VideoWidget::TellRoom() {
    const QSize room = Room();
    if (video_ && !room.isEmpty()) {
        video_->SetRoom({room.width(), room.height()});
    }
}

void VideoWidget::resizeEvent(QResizeEvent*) {
    TellRoom();
}

void VideoWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const platform::VideoFrame frame = video_ ? video_->Frame() : platform::VideoFrame{};
    const platform::Size natural = video_ ? video_->NaturalSize() : platform::Size{};
    const QSize room = Room();
    const platform::Size shape = platform::Fitted(natural, {room.width(), room.height()});
    if (!frame.pixels || shape.Empty()) {
        painter.fillRect(rect(), Qt::black);
        return;
    }
    // From here on in the monitor's pixels, which are the picture's.
    const double ratio = devicePixelRatioF();
    painter.scale(1 / ratio, 1 / ratio);
    const QSize whole(static_cast<int>(std::ceil(width() * ratio)),
                      static_cast<int>(std::ceil(height() * ratio)));
    const QRect place((whole.width() - shape.width) / 2, (whole.height() - shape.height) / 2,
                      shape.width, shape.height);
    const QRegion around = QRegion(QRect(QPoint(), whole)) - place;
    for (const QRect& bar : around) {
        painter.fillRect(bar, Qt::black);
    }
    // The fourth byte of a pixel says nothing.
    const QImage image(frame.pixels, frame.width, frame.height, frame.stride, QImage::Format_RGB32);
    if (image.size() == place.size()) {
        painter.drawImage(place.topLeft(), image);
    } else {
        // Made before the window had this size.
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(place, image);
    }
}

void VideoWidget::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void VideoWidget::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (!player_ || event->button() != Qt::LeftButton || !rect().contains(event->pos())) {
        return;
    }
    gate_->Guarded([this] { player_->Press(); });
}

void VideoWidget::keyPressEvent(QKeyEvent* event) {
    const int key = VirtualKey(event->key());
    if (!player_ || key == 0 || !player_->KeyDown) {
        event->ignore();
        return;
    }
    gate_->Guarded([&] { player_->PressKey(key); });
}

}  // namespace qt_adapter

#include "adapters/qt/video_widget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "adapters/qt/virtual_keys.h"

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

void VideoWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const platform::VideoFrame frame = video_ ? video_->Frame() : platform::VideoFrame{};
    const platform::Size natural = video_ ? video_->NaturalSize() : platform::Size{};
    if (!frame.pixels || natural.Empty()) {
        painter.fillRect(rect(), Qt::black);
        return;
    }
    const QSize shape = QSize(natural.width, natural.height).scaled(size(), Qt::KeepAspectRatio);
    QRect place(QPoint(), shape);
    place.moveCenter(rect().center());
    const QRegion around = QRegion(rect()) - place;
    for (const QRect& bar : around) {
        painter.fillRect(bar, Qt::black);
    }
    // The fourth byte of a pixel says nothing.
    const QImage image(frame.pixels, frame.width, frame.height, frame.stride, QImage::Format_RGB32);
    painter.drawImage(place, image);
}

void VideoWidget::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void VideoWidget::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (!player_ || event->button() != Qt::LeftButton || !rect().contains(event->pos())) {
        return;
    }
    gate_->Guarded([this] {
        if (player_->Reachable()) {
            player_->Click();
        }
    });
}

void VideoWidget::keyPressEvent(QKeyEvent* event) {
    const int key = VirtualKey(event->key());
    if (!player_ || key == 0 || !player_->KeyDown) {
        event->ignore();
        return;
    }
    gate_->Guarded([&] {
        if (player_->Reachable()) {
            player_->KeyDown(key);
        }
    });
}

}  // namespace qt_adapter

#include "adapters/qt/canvas_widget.h"

#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QRegion>
#include <cmath>
#include <vector>

#include "adapters/qt/virtual_keys.h"

namespace qt_adapter {

namespace {

QRegion ToMask(const platform::Region& region, double scale) {
    if (region.rects.empty()) {
        return QRegion(-1, -1, 1, 1);  // an empty mask would mean none
    }
    std::vector<QRect> rects;
    rects.reserve(region.rects.size());
    for (const platform::Rect& rect : region.rects) {
        rects.emplace_back(rect.x, rect.y, rect.width, rect.height);
    }
    if (scale == 1.0) {
        QRegion mask;
        mask.setRects(rects.data(), static_cast<int>(rects.size()));
        return mask;
    }
    QRegion mask;
    for (const QRect& rect : rects) {
        const QPointF end(rect.x() + rect.width(), rect.y() + rect.height());
        mask += QRect(QPoint((QPointF(rect.topLeft()) / scale).toPoint()),
                      (end / scale).toPoint() - QPoint(1, 1));
    }
    return mask;
}

}  // namespace

CanvasWidget::CanvasWidget(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::ClickFocus);
}

CanvasWidget::~CanvasWidget() {
    if (box_) {
        box_->canvas.onChanged = nullptr;
        box_->SetFocus = nullptr;
        box_->Refresh = nullptr;
    }
}

void CanvasWidget::Attach(model::PictureBox& box, Gate& gate, bool physical) {
    box_ = &box;
    gate_ = &gate;
    physical_ = physical;
    box.canvas.TakeChanged();
    box.canvas.onChanged = [this] {
        // Many changes, one repaint: they are gathered until the loop runs.
        if (!flushQueued_) {
            flushQueued_ = true;
            QMetaObject::invokeMethod(this, &CanvasWidget::Flush, Qt::QueuedConnection);
        }
    };
    box.SetFocus = [this] { setFocus(); };
    box.Refresh = [this] {
        FollowRegion();
        update();
        Q_EMIT Rescaled();
    };
    FollowRegion();
    update();
}

double CanvasWidget::Scale() const {
    return physical_ ? devicePixelRatioF() : 1.0;
}

QPoint CanvasWidget::PlaceOf(int x, int y) const {
    const platform::Scale& scale = box_->canvas.Scaling();
    return {static_cast<int>(std::lround(scale.X(x) / Scale())),
            static_cast<int>(std::lround(scale.Y(y) / Scale()))};
}

QSize CanvasWidget::ExtentOf(int width, int height) const {
    const QPoint corner = PlaceOf(width, height);
    return {corner.x(), corner.y()};
}

double CanvasWidget::Enlargement() const {
    const platform::Scale& scale = box_->canvas.Scaling();
    return scale.Plain() ? 0 : scale.Factor() / Scale();
}

void CanvasWidget::FollowRegion() {
    const platform::RegionPtr& region = box_->WindowRgn();
    if (!region || region->Covers({box_->Shown().width, box_->Shown().height})) {
        clearMask();
    } else {
        setMask(ToMask(*region, Scale()));
    }
}

void CanvasWidget::Flush() {
    flushQueued_ = false;
    const platform::Rect changed = box_->canvas.TakeChanged();
    if (changed.Empty()) {
        return;
    }
    const double scale = Scale();
    update(
        QRectF(changed.x / scale, changed.y / scale, changed.width / scale, changed.height / scale)
            .toAlignedRect());
}

void CanvasWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    if (!box_) {
        painter.fillRect(event->rect(), Qt::black);
        return;
    }
    const platform::Bitmap& pixels = box_->Shown();
    const double scale = Scale();
    const QRectF covered(0, 0, pixels.width / scale, pixels.height / scale);
    if (!covered.contains(QRectF(event->rect()))) {
        const auto ground = static_cast<platform::Color>(box_->BackColor());
        painter.fillRect(event->rect(), QColor::fromRgb(platform::ToPixel(ground)));
    }
    if (!pixels.Empty()) {
        QImage image(reinterpret_cast<const uchar*>(pixels.pixels.data()), pixels.width,
                     pixels.height, pixels.width * static_cast<qsizetype>(sizeof(platform::Pixel)),
                     QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);  // on a scaled screen
        // The painter is clipped to what must be painted.
        painter.drawImage(QPoint(0, 0), image);
    }
    if (box_->Border) {
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

/// The place in the units that the rules reckon in.
model::MousePress CanvasWidget::PressOf(const QMouseEvent& event, bool right) const {
    const double factor = Scale() / box_->canvas.Scaling().Factor();
    const QPointF place = event.position() * factor;
    return {right, static_cast<int>(std::floor(place.x())),
            static_cast<int>(std::floor(place.y()))};
}

void CanvasWidget::mousePressEvent(QMouseEvent* event) {
    const bool right = event->button() == Qt::RightButton;
    const bool heard = right ? box_ && (box_->MouseDown || box_->MouseUp)
                             : box_ && event->button() == Qt::LeftButton;
    // Taken, so that the release comes here.
    event->setAccepted(heard);
    second_ = event->type() == QEvent::MouseButtonDblClick;
    if (heard) {
        gate_->Guarded([&] { box_->HoldDown(PressOf(*event, right)); });
    }
}

void CanvasWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

void CanvasWidget::mouseMoveEvent(QMouseEvent* event) {
    if (box_ && box_->MouseMove) {
        const bool right = event->buttons().testFlag(Qt::RightButton);
        gate_->Guarded([&] { box_->Drag(PressOf(*event, right)); });
    }
}

void CanvasWidget::mouseReleaseEvent(QMouseEvent* event) {
    const bool right = event->button() == Qt::RightButton;
    if (!box_ || (!right && event->button() != Qt::LeftButton)) {
        return;
    }
    const bool inside = rect().contains(event->pos());
    const bool again = second_ && inside && !right && box_->DblClick;
    second_ = false;
    gate_->Guarded([&] {
        const model::MousePress press = PressOf(*event, right);
        if (again) {
            box_->PressAgain(press);
        } else {
            box_->Release(press, inside);
        }
    });
}

void CanvasWidget::keyPressEvent(QKeyEvent* event) {
    const int key = VirtualKey(event->key());
    if (!box_ || key == 0 || !box_->KeyDown) {
        event->ignore();  // goes on to the window
        return;
    }
    gate_->Guarded([&] { box_->PressKey(key); });
}

}  // namespace qt_adapter

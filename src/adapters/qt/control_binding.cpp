#include "adapters/qt/control_binding.h"

#include <QKeyEvent>
#include <QPushButton>

#include "adapters/qt/canvas_widget.h"
#include "adapters/qt/convert.h"
#include "adapters/qt/stage_widget.h"
#include "adapters/qt/virtual_keys.h"
#include "platform/monitors.h"

namespace qt_adapter {

namespace {

constexpr int kCaptionMargin = 8;  // pixels, of a button over a canvas

}  // namespace

ControlBinding::ControlBinding(model::VisibleControl& control, QWidget& widget, const Site& site)
    : control_(control), widget_(widget), gate_(site.gate), host_(site.host) {
    control.Listen(this);
    if (host_) {
        connect(host_, &CanvasWidget::Rescaled, this, [this] { Sync(); });
    }
}

ControlBinding::~ControlBinding() {
    control_.Unlisten(this);
}

void ControlBinding::PropertyChanged(model::Control&, model::PropertyBase& property) {
    if (&property == &control_.Visible) {
        widget_.setVisible(control_.Visible);
    } else if (&property == &control_.Enabled) {
        widget_.setEnabled(control_.Enabled);
    } else if (&property == &control_.Left || &property == &control_.Top ||
               &property == &control_.Width || &property == &control_.Height) {
        Place();
    } else {
        SyncOwn();
    }
}

void ControlBinding::Sync() {
    SyncOwn();
    Place();
    widget_.setEnabled(control_.Enabled);
    widget_.setVisible(control_.Visible);
}

void ControlBinding::Act(const std::function<void()>& call) {
    gate_.Guarded([&] {
        if (control_.Reachable()) {
            call();
        }
    });
}

void ControlBinding::HearKeys() {
    widget_.installEventFilter(this);
}

bool ControlBinding::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && watched == &widget_) {
        const int key = VirtualKey(static_cast<QKeyEvent*>(event)->key());
        if (key != 0) {
            Act([&] { control_.PressKey(key); });
        }
    }
    return false;
}

int ControlBinding::UnitsPerPixel() const {
    return platform::kTwipsPerPixel;
}

double ControlBinding::Scale() const {
    return host_ ? host_->Scale() : 1.0;
}

double ControlBinding::Enlargement() const {
    return host_ ? host_->Enlargement() : 0;
}

void ControlBinding::Place() {
    const QWidget* parent = widget_.parentWidget();
    const bool onStage = qobject_cast<const StageWidget*>(parent) != nullptr;
    if (widget_.property("placed").toBool()) {
        widget_.setGeometry(ToPixels(control_.Left), ToPixels(control_.Top),
                            ToPixels(control_.Width), ToPixels(control_.Height));
        return;
    }
    if (!host_ && !onStage) {
        return;
    }
    const int width = control_.Width / UnitsPerPixel();
    const int height = control_.Height / UnitsPerPixel();
    QSize size = host_ ? host_->ExtentOf(width, height) : QSize(width, height);
    if (size.isEmpty()) {
        size = NaturalSize();
    }
    if (const auto* button = qobject_cast<const QPushButton*>(&widget_); button && host_) {
        // On a scaled monitor the letters are larger than the canvas's pixels.
        const QFontMetrics metrics = button->fontMetrics();
        size = size.expandedTo({metrics.horizontalAdvance(button->text()) + kCaptionMargin,
                                metrics.height() + kCaptionMargin / 2});
    }
    if (Enlargement() > 0 && control_.Kind() == model::ControlKind::Label) {
        size = size.expandedTo(widget_.sizeHint());  // letters end between pixels
    }
    widget_.resize(size);
    if (host_) {
        widget_.move(host_->PlaceOf(control_.Left, control_.Top));
    }
}

}  // namespace qt_adapter

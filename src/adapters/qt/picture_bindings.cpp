#include "adapters/qt/picture_bindings.h"

namespace qt_adapter {

PictureBinding::PictureBinding(model::PictureBox& box, CanvasWidget& widget, const Site& site)
    : ControlBinding(box, widget, site), box_(box) {
    widget.Attach(box, site.gate, site.physical);
    Sync();
}

void PictureBinding::SyncOwn() {
    if (box_.MousePointer == model::kPointerCustom) {
        widget_.setCursor(Qt::PointingHandCursor);
    } else if (widget_.cursor().shape() == Qt::PointingHandCursor) {
        widget_.setCursor(Qt::ArrowCursor);
    }
    widget_.update();
}

ImageBinding::ImageBinding(model::Image& image, ImageWidget& widget, const Site& site)
    : ControlBinding(image, widget, site) {
    widget.Attach(image, site.gate);
    Sync();
}

PlayerBinding::PlayerBinding(model::Player& player, VideoWidget& widget, const Site& site)
    : ControlBinding(player, widget, site), screen_(widget) {
    widget.Attach(player, site.gate);
    Sync();
}

void PlayerBinding::PropertyChanged(model::Control& control, model::PropertyBase& property) {
    ControlBinding::PropertyChanged(control, property);
    screen_.TellRoom();
    screen_.update();
}

}  // namespace qt_adapter

// Surfaces that paint themselves: canvases, stretched pictures, the video.
#pragma once

#include "adapters/qt/canvas_widget.h"
#include "adapters/qt/control_binding.h"
#include "adapters/qt/image_widget.h"
#include "adapters/qt/video_widget.h"
#include "model/picture_controls.h"

namespace qt_adapter {

class PictureBinding : public ControlBinding {
public:
    PictureBinding(model::PictureBox& box, CanvasWidget& widget, const Site& site);

protected:
    void SyncOwn() override;
    QSize NaturalSize() const override { return {0, 0}; }

private:
    model::PictureBox& box_;
};

class ImageBinding : public ControlBinding {
public:
    ImageBinding(model::Image& image, ImageWidget& widget, const Site& site);

protected:
    void SyncOwn() override {}
};

class PlayerBinding : public ControlBinding {
public:
    PlayerBinding(model::Player& player, VideoWidget& widget, const Site& site);
    void PropertyChanged(model::Control& control, model::PropertyBase& property) override;

protected:
    void SyncOwn() override {}

private:
    VideoWidget& screen_;
};

}  // namespace qt_adapter

// Shows an image control: its picture at the widget's size.
#pragma once

#include <QWidget>

#include "adapters/qt/gate.h"
#include "model/picture_controls.h"

namespace qt_adapter {

class ImageWidget : public QWidget {
    Q_OBJECT

public:
    explicit ImageWidget(QWidget* parent = nullptr) : QWidget(parent) {}
    ~ImageWidget() override;

    void Attach(model::Image& image, Gate& gate);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    model::Image* image_ = nullptr;
    Gate* gate_ = nullptr;
    bool second_ = false;  // the press that is held is the second of a double click
};

}  // namespace qt_adapter

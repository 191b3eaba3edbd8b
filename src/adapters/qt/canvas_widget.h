// Shows a picture box: paints the pixels of its canvas, and only those that changed.
#pragma once

#include <QWidget>

#include "adapters/qt/gate.h"
#include "model/picture_controls.h"

namespace qt_adapter {

class CanvasWidget : public QWidget {
    Q_OBJECT

public:
    explicit CanvasWidget(QWidget* parent = nullptr);
    ~CanvasWidget() override;

    /// `physical`: a canvas pixel is a pixel of the monitor; otherwise one of the window's units.
    void Attach(model::PictureBox& box, Gate& gate, bool physical);

    bool Physical() const { return physical_; }
    /// Canvas pixels in one unit of the widget's coordinates.
    double Scale() const;
    /// Where a place of the canvas, in its units, lies on the widget, and how large that size is.
    QPoint PlaceOf(int x, int y) const;
    QSize ExtentOf(int width, int height) const;
    /// Widget's coordinates for one unit of a canvas whose units are no pixels; 0 for others.
    double Enlargement() const;

    /// Cuts the widget to the box's region, pointer and presses included.
    void FollowRegion();

Q_SIGNALS:
    /// The canvas may have another scale.
    void Rescaled();

public:
    /// Asks for a repaint of what changed on the canvas since the last time.
    void Flush();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    model::MousePress PressOf(const QMouseEvent& event, bool right) const;

    model::PictureBox* box_ = nullptr;
    Gate* gate_ = nullptr;
    bool physical_ = false;
    bool flushQueued_ = false;
    bool second_ = false;  // the press that is held is the second of a double click
};

}  // namespace qt_adapter

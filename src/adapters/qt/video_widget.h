// Shows the newest picture of the program's video player on black, fitted with its shape kept to
// the widget, or to the size of the model's control where that is smaller.
#pragma once

#include <QWidget>

#include "adapters/qt/gate.h"
#include "model/picture_controls.h"
#include "platform/video.h"

namespace qt_adapter {

class VideoWidget : public QWidget {
    Q_OBJECT

public:
    /// `video` null: black.
    explicit VideoWidget(platform::Video* video, QWidget* parent = nullptr);
    ~VideoWidget() override;

    /// From now on clicks and keys go to the control; keys that it does not want go on to the
    /// window.
    void Attach(model::Player& player, Gate& gate);
    /// Says to the player how large its pictures are wanted.
    void TellRoom();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QSize Room() const;

    platform::Video* video_;
    model::Player* player_ = nullptr;
    Gate* gate_ = nullptr;
};

}  // namespace qt_adapter

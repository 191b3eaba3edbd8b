// A slider along the loudness of a piece of sound: a press or a drag chooses the place.
#pragma once

#include <QAbstractSlider>
#include <vector>

#include "adapters/qt/number_bindings.h"
#include "model/sound_bar.h"

namespace qt_adapter {

class SoundSlider : public QAbstractSlider {
    Q_OBJECT

public:
    explicit SoundSlider(QWidget* parent = nullptr);
    /// As SoundBar::Levels.
    void SetLevels(const std::vector<uint8_t>& levels);
    QSize sizeHint() const override { return {300, 44}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int ValueAt(int x) const;
    double ShareOf(int value) const;

    std::vector<uint8_t> levels_;
    int held_ = -1;  // the value under a pressed button
};

class SoundBinding : public ScrollBinding {
public:
    SoundBinding(model::SoundBar& bar, SoundSlider& widget, const Site& site);
    ~SoundBinding() override;

private:
    model::SoundBar& sound_;
};

}  // namespace qt_adapter

// A dark stage that keeps its children centred and never asks for room of its own, so that a
// window can be made smaller than the picture on it.
#pragma once

#include <QWidget>

namespace qt_adapter {

class StageWidget : public QWidget {
    Q_OBJECT

public:
    explicit StageWidget(QWidget* parent = nullptr);
    QSize sizeHint() const override { return {0, 0}; }
    QSize minimumSizeHint() const override { return {0, 0}; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void childEvent(QChildEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Centre(QWidget& child);
};

}  // namespace qt_adapter

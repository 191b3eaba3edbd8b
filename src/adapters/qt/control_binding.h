// Ties one control to its widget, both ways: what the model says is shown, what a person does is
// passed to the model.
#pragma once

#include <QObject>
#include <QWidget>
#include <memory>

#include "adapters/qt/gate.h"
#include "model/control.h"

namespace qt_adapter {

class CanvasWidget;

/// Where a widget stands.
struct Site {
    Gate& gate;
    /// The canvas over which the control is placed by its Left and Top in the canvas's units; null
    /// for a widget that has its place by the form.
    const CanvasWidget* host = nullptr;
    bool physical = false;  // see CanvasWidget::Attach
};

class ControlBinding : public QObject, public model::Listener {
public:
    ControlBinding(model::VisibleControl& control, QWidget& widget, const Site& site);
    ~ControlBinding() override;

    void PropertyChanged(model::Control& control, model::PropertyBase& property) override;
    /// Shows everything as the model says.
    virtual void Sync();

    model::VisibleControl& Control() { return control_; }
    QWidget& Widget() { return widget_; }

protected:
    /// Shows what only this kind has.
    virtual void SyncOwn() = 0;
    /// Runs `call` when a person can reach the control.
    void Act(const std::function<void()>& call);
    /// From now on the control hears the keys that are pressed on its widget, before the widget.
    void HearKeys();
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// Size of a widget for which the model says none.
    virtual QSize NaturalSize() const { return widget_.sizeHint(); }
    /// In which the model gives Width and Height.
    virtual int UnitsPerPixel() const;
    /// Pixels of the canvas for one of the toolkit's; 1 for a widget that is not on a canvas.
    double Scale() const;
    /// See CanvasWidget::Enlargement; 0 for a widget that is not on a canvas.
    double Enlargement() const;

    model::VisibleControl& control_;
    QWidget& widget_;
    Gate& gate_;

private:
    void Place();

    const CanvasWidget* host_;
};

}  // namespace qt_adapter

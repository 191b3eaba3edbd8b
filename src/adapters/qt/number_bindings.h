// A scroll bar and a calendar: controls of one value.
#pragma once

#include <QAbstractSlider>
#include <QCalendarWidget>
#include <QProgressBar>

#include "adapters/qt/control_binding.h"
#include "model/grid.h"
#include "model/scroll_bar.h"

namespace qt_adapter {

/// The widget is a QScrollBar or a QSlider.
class ScrollBinding : public ControlBinding {
public:
    ScrollBinding(model::ScrollBar& bar, QAbstractSlider& widget, const Site& site);

protected:
    void SyncOwn() override;

private:
    model::ScrollBar& bar_;
    QAbstractSlider& face_;
};

/// The number is seen and cannot be moved.
class MeterBinding : public ControlBinding {
public:
    MeterBinding(model::ScrollBar& bar, QProgressBar& widget, const Site& site);

protected:
    void SyncOwn() override;

private:
    model::ScrollBar& bar_;
    QProgressBar& face_;
};

class CalendarBinding : public ControlBinding {
public:
    CalendarBinding(model::Calendar& calendar, QCalendarWidget& widget, const Site& site);

protected:
    void SyncOwn() override;

private:
    model::Calendar& calendar_;
    QCalendarWidget& face_;
};

}  // namespace qt_adapter

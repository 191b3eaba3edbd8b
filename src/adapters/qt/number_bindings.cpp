#include "adapters/qt/number_bindings.h"

#include "adapters/qt/convert.h"

namespace qt_adapter {

namespace {

const QString kDayForm = QStringLiteral("yyyy/MM/dd");

}  // namespace

ScrollBinding::ScrollBinding(model::ScrollBar& bar, QAbstractSlider& widget, const Site& site)
    : ControlBinding(bar, widget, site), bar_(bar), face_(widget) {
    HearKeys();
    Sync();
    connect(&widget, &QAbstractSlider::valueChanged, this, [this](int value) {
        if (value != bar_.Value) {
            Act([&] { bar_.MoveTo(value); });
        }
    });
}

void ScrollBinding::SyncOwn() {
    face_.setRange(bar_.Min, bar_.Max);
    face_.setSingleStep(bar_.SmallChange);
    face_.setPageStep(bar_.LargeChange);
    face_.setValue(bar_.Value);
}

MeterBinding::MeterBinding(model::ScrollBar& bar, QProgressBar& widget, const Site& site)
    : ControlBinding(bar, widget, site), bar_(bar), face_(widget) {
    Sync();
}

void MeterBinding::SyncOwn() {
    face_.setRange(bar_.Min, bar_.Max);
    face_.setValue(bar_.Value);
}

CalendarBinding::CalendarBinding(model::Calendar& calendar, QCalendarWidget& widget,
                                 const Site& site)
    : ControlBinding(calendar, widget, site), calendar_(calendar), face_(widget) {
    HearKeys();
    const auto choose = [this](const QDate& day) {
        Act([&] { calendar_.Choose(FromQt(day.toString(kDayForm))); });
    };
    connect(&widget, &QCalendarWidget::clicked, this, choose);
    connect(&widget, &QCalendarWidget::activated, this, choose);
    Sync();
}

void CalendarBinding::SyncOwn() {
    const QDate day = QDate::fromString(ToQt(calendar_.Value()), kDayForm);
    if (day.isValid()) {
        face_.setSelectedDate(day);
    }
}

}  // namespace qt_adapter

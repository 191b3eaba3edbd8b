// Which kind of control is shown by which widget.
#pragma once

#include <memory>

#include "adapters/qt/control_binding.h"

namespace qt_adapter {

/// True for kinds that have a widget.
bool HasWidget(model::ControlKind kind);

/// A plain widget for a control that its form does not hold; null for kinds that need a form.
QWidget* MakePlainWidget(model::ControlKind kind, QWidget* parent);

/// Null, with a warning, when the widget is of a class that does not fit the control.
std::unique_ptr<ControlBinding> MakeBinding(model::VisibleControl& control, QWidget& widget,
                                            const Site& site);

}  // namespace qt_adapter

// What a person presses: buttons, check boxes and options.
#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QRadioButton>

#include "adapters/qt/control_binding.h"
#include "model/controls.h"

namespace qt_adapter {

class ButtonBinding : public ControlBinding {
public:
    ButtonBinding(model::Button& button, QAbstractButton& widget, const Site& site);
    ~ButtonBinding() override;

protected:
    void SyncOwn() override;

private:
    QString Detail() const;

    model::Button& button_;
    QAbstractButton& face_;
    bool named_;  // by the form; else it is called by its caption
};

class CheckBinding : public ControlBinding {
public:
    CheckBinding(model::CheckBox& box, QCheckBox& widget, const Site& site);

protected:
    void SyncOwn() override;

private:
    model::CheckBox& box_;
    QCheckBox& face_;
};

class OptionBinding : public ControlBinding {
public:
    OptionBinding(model::OptionButton& option, QRadioButton& widget, const Site& site);

protected:
    void SyncOwn() override;

private:
    model::OptionButton& option_;
    QRadioButton& face_;
};

}  // namespace qt_adapter

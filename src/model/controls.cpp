#include "model/controls.h"

#include "model/window.h"

namespace model {

Button::Button(Window* window, std::string name, Text caption)
    : PressedControl(window, ControlKind::Button, std::move(name)),
      Caption(*this, "Caption", std::move(caption)) {}

CheckBox::CheckBox(Window* window, std::string name, Text caption)
    : PressedControl(window, ControlKind::CheckBox, std::move(name)),
      Caption(*this, "Caption", std::move(caption)) {}

bool CheckBox::OnPress(const MousePress& press) {
    if (press.right) {
        return false;
    }
    Value = Value ? 0 : 1;
    Click();
    return true;
}

Frame::Frame(Window* window, std::string name, Text caption)
    : VisibleControl(window, ControlKind::Frame, std::move(name)),
      Caption(*this, "Caption", std::move(caption)) {}

OptionButton::OptionButton(Window* window, std::string name, Text caption, Frame* group)
    : PressedControl(window, ControlKind::OptionButton, std::move(name)),
      Caption(*this, "Caption", std::move(caption)),
      group_(group) {}

bool OptionButton::OnPress(const MousePress& press) {
    if (press.right) {
        return false;
    }
    for (Control* control : Parent().Controls()) {
        auto* other = dynamic_cast<OptionButton*>(control);
        if (other && other != this && other->group_ == group_) {
            other->Value = false;
        }
    }
    Value = true;
    Click();
    return true;
}

Label::Label(Window* window, std::string name, Text caption)
    : VisibleControl(window, ControlKind::Label, std::move(name)),
      Caption(*this, "Caption", std::move(caption)) {}

TextBox::TextBox(Window* window, std::string name)
    : VisibleControl(window, ControlKind::TextBox, std::move(name)) {}

bool TextBox::Enter(const Text& content) {
    if (!Reachable()) {
        return false;
    }
    if (Content() != content) {
        Content = content;
        Change();
    }
    return true;
}

Timer::Timer(Window* window, std::string name, int interval, bool enabled)
    : Control(window, ControlKind::Timer, std::move(name)),
      Interval(*this, "Interval", interval),
      Enabled(*this, "Enabled", enabled) {}

LeadControl::LeadControl(Window* window, std::string name)
    : Control(window, ControlKind::Imaging, std::move(name)) {}

}  // namespace model

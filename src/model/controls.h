// Buttons, boxes, labels, text boxes, timers, and arrays of controls.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "model/control.h"
#include "platform/imaging.h"

namespace model {

/// Face of buttons, as most of the desktop's themes have it.
constexpr int kSystemButtonColor = 0xF0F0F0;

/// Each press is a click, also the second of a double click.
class PressedControl : public VisibleControl {
public:
    using VisibleControl::VisibleControl;

protected:
    bool OnPressAgain(const MousePress& press) override { return OnPress(press); }
};

class Button : public PressedControl {
public:
    Button(Window* window, std::string name, Text caption = {});
    Property<Text> Caption;
    Event<> SetFocus;  // takes the keyboard; attached by the view
};

/// A press changes Value, then clicks.
class CheckBox : public PressedControl {
public:
    CheckBox(Window* window, std::string name, Text caption = {});
    Property<Text> Caption;
    Property<int> Value{*this, "Value"};  // 0 off, 1 on

protected:
    bool OnPress(const MousePress& press) override;
};

class Frame : public VisibleControl {
public:
    Frame(Window* window, std::string name, Text caption = {});
    Property<Text> Caption;
};

/// Of the option buttons that stand in one frame, or in the window beside all frames, a press
/// chooses one and leaves the others.
class OptionButton : public PressedControl {
public:
    OptionButton(Window* window, std::string name, Text caption = {}, Frame* group = nullptr);
    Property<Text> Caption;
    Property<bool> Value{*this, "Value"};

protected:
    bool OnPress(const MousePress& press) override;

private:
    const Frame* group_;
};

/// One that stands on a canvas is placed and sized in the canvas's pixels. It has a font of its own
/// when FontName is set.
class Label : public VisibleControl {
public:
    Label(Window* window, std::string name, Text caption = {});
    Property<Text> Caption;
    Property<Text> FontName{*this, "FontName"};
    Property<double> FontSize{*this, "FontSize"};  // points
    Property<bool> FontBold{*this, "FontBold", false};
    Property<bool> FontItalic{*this, "FontItalic", false};
    Property<int> ForeColor{*this, "ForeColor"};  // 0x00BBGGRR
};

class TextBox : public VisibleControl {
public:
    TextBox(Window* window, std::string name);
    Property<Text> Content{*this, "Text"};
    Event<> Change;  // a person changed the text

    /// The text as a person left it. An equal one changes nothing. False unless Reachable.
    bool Enter(const Text& content);
};

/// Ticks while Enabled and Interval > 0; run by the event loop.
class Timer : public Control {
public:
    Timer(Window* window, std::string name, int interval = 0, bool enabled = false);
    Property<int> Interval;  // milliseconds, 0 never ticks
    Property<bool> Enabled;
    Event<> Tick;
};

/// Controls of one name told apart by index: "Picture2(0)" and on.
template <class Kind>
class ControlArray {
public:
    /// `rest` goes to every element after its window and name.
    template <class... Rest>
    ControlArray(Window* window, const std::string& name, int first, int count, Rest... rest)
        : first_(first) {
        for (int i = 0; i < count; ++i) {
            elements_.push_back(std::make_unique<Kind>(
                window, name + "(" + std::to_string(first + i) + ")", rest...));
        }
    }
    Kind& operator()(int index) { return *elements_.at(static_cast<size_t>(index - first_)); }
    int First() const { return first_; }
    int Count() const { return static_cast<int>(elements_.size()); }
    auto begin() { return elements_.begin(); }
    auto end() { return elements_.end(); }

private:
    int first_;
    std::vector<std::unique_ptr<Kind>> elements_;
};

/// An imaging control standing in a window.
class LeadControl : public Control {
public:
    LeadControl(Window* window, std::string name);
    /// Given at start-up; lives as long as the window.
    std::unique_ptr<platform::ImagingControl> imaging;
};

}  // namespace model

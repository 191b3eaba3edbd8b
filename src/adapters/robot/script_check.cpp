#include "adapters/robot/script_check.h"

#include <algorithm>
#include <charconv>

#include "adapters/robot/values.h"
#include "model/menu.h"
#include "model/windows/main_window.h"

namespace robot {

namespace {

/// "YYYY/MM/DD" in digits.
/// Written in full, and in the calendar.
bool IsDay(TextView value) {
    platform::DateTime day;
    return platform::ReadDateTime(value, day) && platform::DateText(day) == value;
}

bool IsFieldless(ActionKind kind) {
    return kind == ActionKind::Answer || kind == ActionKind::Input || kind == ActionKind::Choose ||
           kind == ActionKind::Quit;
}

bool IsLook(ActionKind kind) {
    return kind == ActionKind::Shot || kind == ActionKind::Golden;
}

/// Why the action's numbers cannot be selected there; empty when they can.
std::string WhyNoSelect(const Action& action, model::Control& control) {
    if (control.Kind() == model::ControlKind::Grid) {
        const size_t count = action.numbers.size();
        return count == 2 || count == 4 ? "" : "a cell is ROW COL, a range ROW COL ROW2 COL2";
    }
    if (!AsList(control)) {
        return action.control + " is no list";
    }
    const bool clears = control.Kind() == model::ControlKind::ListBox ||
                        control.Kind() == model::ControlKind::FileList;
    return clears || !action.numbers.empty() ? "" : action.control + " always has a row chosen";
}

/// Why the action's value cannot be given to a control of that kind; empty when it can.
std::string WhyNoSet(const Action& action, model::ControlKind kind) {
    const Text& value = *action.text;
    switch (kind) {
        case model::ControlKind::TextBox:
        case model::ControlKind::ComboBox:
        case model::ControlKind::FolderList:
        case model::ControlKind::DriveList:
            return "";
        case model::ControlKind::Calendar:
            return IsDay(value) ? "" : "this is no day YYYY/MM/DD: " + text::ToUtf8(value);
        case model::ControlKind::ScrollBar:
            return WholeNumber(value) ? "" : "this is no whole number: " + text::ToUtf8(value);
        case model::ControlKind::CheckBox:
        case model::ControlKind::OptionButton:
            break;
        default:
            return action.control + " has no value to set";
    }
    const std::optional<bool> on = OnOrOff(value);
    if (!on) {
        return "neither 0 nor 1: " + text::ToUtf8(value);
    }
    const bool leaves = kind == model::ControlKind::OptionButton && !*on;
    return leaves ? "an option is left by choosing another one" : "";
}

/// Of a menu entry.
std::string WhyNoChoice(model::Application& application, const Action& action) {
    const model::Window* window = application.windows.Find(action.window);
    if (!window) {
        return "no such window: " + action.window;
    }
    const auto* entry = dynamic_cast<const model::MenuEntry*>(window->FindControl(action.name));
    if (!entry) {
        return "no such menu entry: " + action.name;
    }
    return entry->Children().empty() ? "" : action.name + " is a menu, not an entry to choose";
}

/// Of an action on a window or a control.
std::string WhyNoAct(model::Application& application, const Action& action) {
    if (!application.windows.Find(action.window)) {
        return "no such window: " + action.window;
    }
    model::Control* control = FindTarget(application, action);
    if (!control) {
        return action.window + " has no control " + action.control;
    }
    switch (control->Kind()) {
        case model::ControlKind::Timer:
        case model::ControlKind::Imaging:
        case model::ControlKind::MenuEntry:
            return action.control + " is nothing that a person sees in the window";
        default:
            break;
    }
    switch (action.kind) {
        case ActionKind::Select:
            return WhyNoSelect(action, *control);
        case ActionKind::Move:
            return AsList(*control) ? "" : action.control + " is no list";
        case ActionKind::Set:
            return WhyNoSet(action, control->Kind());
        default:
            return "";
    }
}

}  // namespace

std::string WhyNot(model::Application& application, const Action& action) {
    if (IsFieldless(action.kind) || LooksAtRun(action.kind) ||
        (IsLook(action.kind) && action.window.empty())) {
        return "";
    }
    if (action.kind == ActionKind::Print || action.kind == ActionKind::Expect) {
        std::string error;
        return ReadByName(application, action.name, error) ? "" : error;
    }
    return action.kind == ActionKind::Menu ? WhyNoChoice(application, action)
                                           : WhyNoAct(application, action);
}

model::Control* FindTarget(model::Application& application, const Action& action) {
    model::Window* window = application.windows.Find(action.window);
    if (!window || action.control.empty()) {
        return window;
    }
    return window->FindControl(action.control);
}

model::ListBox* AsList(model::Control& control) {
    return dynamic_cast<model::ListBox*>(&control);
}

std::optional<bool> OnOrOff(TextView value) {
    if (value == u"1" || value == u"true") {
        return true;
    }
    if (value == u"0" || value == u"false") {
        return false;
    }
    return std::nullopt;
}

std::optional<int> WholeNumber(TextView value) {
    const std::string digits = text::ToUtf8(value);
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size()) {
        return std::nullopt;
    }
    return number;
}

}  // namespace robot

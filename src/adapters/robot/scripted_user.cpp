#include "adapters/robot/scripted_user.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "adapters/robot/values.h"

namespace robot {

namespace {

constexpr int kExitFailedExpectation = 1;
constexpr int kExitBadScript = 2;

/// A person's file dialog and file manager give whole paths. Drive letters and share names are
/// whole already.
Text Absolute(const Text& path) {
    const bool whole =
        path.starts_with(u'/') || path.starts_with(u'\\') || (path.size() > 1 && path[1] == u':');
    if (whole || path.empty()) {
        return path;
    }
    const std::filesystem::path native = std::filesystem::current_path() / text::ToUtf8(path);
    return text::FromUtf8(native.lexically_normal().string());
}

/// A check or option box's value as scripts write it; nullopt where it is none.
std::optional<bool> OnOrOff(TextView value) {
    if (value == u"1" || value == u"true") {
        return true;
    }
    if (value == u"0" || value == u"false") {
        return false;
    }
    return std::nullopt;
}

void ToggleCheck(model::CheckBox& box) {
    box.Value = box.Value ? 0 : 1;
    box.Click();
}

/// Of the option buttons of a window one is on.
void ChooseOption(model::OptionButton& chosen) {
    for (model::Control* control : chosen.Parent().Controls()) {
        auto* other = dynamic_cast<model::OptionButton*>(control);
        if (other && other != &chosen) {
            other->Value = false;
        }
    }
    chosen.Value = true;
    chosen.Click();
}

/// One press of the left button. Changes and tells what such a control does by itself.
void Press(model::Control& control) {
    if (auto* button = dynamic_cast<model::Button*>(&control)) {
        button->Click();
    } else if (auto* check = dynamic_cast<model::CheckBox*>(&control)) {
        ToggleCheck(*check);
    } else if (auto* option = dynamic_cast<model::OptionButton*>(&control)) {
        ChooseOption(*option);
    } else if (auto* list = dynamic_cast<model::ListBox*>(&control)) {
        list->Click();
    } else if (auto* picture = dynamic_cast<model::PictureBox*>(&control)) {
        picture->Click();
    } else if (auto* player = dynamic_cast<model::Player*>(&control)) {
        player->Click();
    } else if (auto* window = dynamic_cast<model::Window*>(&control)) {
        window->Click();
    }
}

/// These take the second press of a double click as a click of its own.
bool TakesEveryPress(model::ControlKind kind) {
    return kind == model::ControlKind::Button || kind == model::ControlKind::CheckBox ||
           kind == model::ControlKind::OptionButton;
}

bool IsFieldless(ActionKind kind) {
    return kind == ActionKind::Answer || kind == ActionKind::Input || kind == ActionKind::Choose ||
           kind == ActionKind::Quit;
}

platform::Answer AnswerOf(const Text& word) {
    return word == u"yes"  ? platform::Answer::Yes
           : word == u"no" ? platform::Answer::No
           : word == u"ok" ? platform::Answer::Ok
                           : platform::Answer::Cancel;
}

bool Reachable(const model::MenuEntry& entry) {
    for (const model::MenuEntry* one = &entry; one; one = one->ParentEntry()) {
        if (!one->Visible || !one->Enabled) {
            return false;
        }
    }
    return true;
}

/// Keys that menu entries take while their window has the keyboard, and their numbers.
struct ShortcutKey {
    int code;
    TextView name;
};
constexpr ShortcutKey kShortcutKeys[] = {
    {32, u"Space"}, {37, u"Left"}, {39, u"Right"}, {116, u"F5"}};

/// One entry at most, as of all that bear the key only one can be chosen.
void PressShortcut(model::Window& window, int code) {
    for (const ShortcutKey& key : kShortcutKeys) {
        if (key.code != code) {
            continue;
        }
        for (model::Control* control : window.Controls()) {
            auto* entry = dynamic_cast<model::MenuEntry*>(control);
            if (entry && entry->Shortcut() == key.name && Reachable(*entry)) {
                entry->Click();
                return;
            }
        }
    }
}

/// A press beside a cut-out shape is no press on the piece.
bool Misses(const Action& action, const model::Control& control) {
    const auto* picture = dynamic_cast<const model::PictureBox*>(&control);
    return picture && picture->WindowRgn() && action.numbers.size() == 2 &&
           !picture->TakesPress(action.numbers[0], action.numbers[1]);
}

/// What lies beneath the pieces of a window: its first picture box.
model::Control& CanvasOf(model::Window& window) {
    for (model::Control* control : window.Controls()) {
        if (control->Kind() == model::ControlKind::PictureBox) {
            return *control;
        }
    }
    return window;
}

model::Control* FindTarget(model::Application& application, const Action& action) {
    model::Window* window = application.windows.Find(action.window);
    if (!window || action.control.empty()) {
        return window;
    }
    return window->FindControl(action.control);
}

}  // namespace

void ScriptedUser::Attach(model::Application& application, ShotFunction shot) {
    application_ = &application;
    shot_ = std::move(shot);
    for (const Action& action : script_) {
        Check(action);
    }
}

int ScriptedUser::ExitStatus() {
    if (!leftOverTold_ && status_ != kExitBadScript) {
        leftOverTold_ = true;
        for (size_t i = next_; i < script_.size(); ++i) {
            if (script_[i].kind == ActionKind::Expect) {
                around_.err << Place(script_[i]) << "never reached: the program had ended\n";
                status_ = kExitFailedExpectation;
            }
        }
        around_.err.flush();
    }
    return status_;
}

std::optional<double> ScriptedUser::NextDue() const {
    if (ending_ || next_ >= script_.size()) {
        return std::nullopt;
    }
    const Due& due = script_[next_].due;
    switch (due.kind) {
        case Due::Absolute:
            return std::max(previousRun_, due.milliseconds);
        case Due::After:
            return previousRun_ + due.milliseconds;
        case Due::Next:
            break;
    }
    return previousRun_;
}

void ScriptedUser::RunNext() {
    previousRun_ = around_.loop.Milliseconds();
    Run(script_[next_++]);
}

void ScriptedUser::End() {
    if (ending_) {
        return;
    }
    ending_ = true;
    application_->windows.form1.Unload();
    throw platform::ProgramEnd{};
}

/// Finds what can be found wrong before anything runs: all names and kinds of controls.
void ScriptedUser::Check(const Action& action) {
    const auto refuse = [&](const std::string& reason) {
        throw ScriptError(Place(action) + reason);
    };
    if (IsFieldless(action.kind)) {
        return;
    }
    if (action.kind == ActionKind::Print || action.kind == ActionKind::Expect) {
        std::string error;
        if (!ReadByName(*application_, action.name, error)) {
            refuse(error);
        }
        return;
    }
    if (action.kind == ActionKind::Menu) {
        CheckMenuEntry(action);
        return;
    }
    if (action.kind == ActionKind::Shot && action.window.empty()) {
        return;
    }
    if (!application_->windows.Find(action.window)) {
        refuse("no such window: " + action.window);
    }
    const model::Control* control = FindTarget(*application_, action);
    if (!control) {
        refuse(action.window + " has no control " + action.control);
    }
    const model::ControlKind kind = control->Kind();
    if (kind == model::ControlKind::Timer || kind == model::ControlKind::Imaging ||
        kind == model::ControlKind::MenuEntry) {
        refuse(action.control + " is nothing that a person sees in the window");
    }
    if (action.kind == ActionKind::Select && kind != model::ControlKind::ListBox) {
        refuse(action.control + " is no list");
    }
    if (action.kind != ActionKind::Set || kind == model::ControlKind::TextBox) {
        return;
    }
    const std::optional<bool> on = OnOrOff(*action.text);
    if (kind != model::ControlKind::CheckBox && kind != model::ControlKind::OptionButton) {
        refuse(action.control + " has no value to set");
    } else if (!on) {
        refuse("neither 0 nor 1: " + text::ToUtf8(*action.text));
    } else if (kind == model::ControlKind::OptionButton && !*on) {
        refuse("an option is left by choosing another one");
    }
}

void ScriptedUser::CheckMenuEntry(const Action& action) {
    const auto* entry =
        dynamic_cast<const model::MenuEntry*>(application_->windows.form1.FindControl(action.name));
    if (!entry) {
        throw ScriptError(Place(action) + "no such menu entry: " + action.name);
    }
    if (!entry->Children().empty()) {
        throw ScriptError(Place(action) + action.name + " is a menu, not an entry to choose");
    }
}

void ScriptedUser::Run(const Action& action) {
    switch (action.kind) {
        case ActionKind::Menu:
            return Menu(action);
        case ActionKind::Answer:
            return around_.dialogs.QueueAnswer(AnswerOf(*action.text));
        case ActionKind::Input:
            return around_.dialogs.QueueInput(action.text);
        case ActionKind::Choose:
            return around_.dialogs.QueueFile(action.text ? std::optional(Absolute(*action.text))
                                                         : std::nullopt);
        case ActionKind::Print:
            return Print(action);
        case ActionKind::Expect:
            return Expect(action);
        case ActionKind::Shot:
            return Shot(action);
        case ActionKind::Quit:
            return End();
        default:
            break;
    }
    model::Window& window = *application_->windows.Find(action.window);
    model::Control& control = *FindTarget(*application_, action);
    if (!CanUse(window, control)) {
        return;
    }
    switch (action.kind) {
        case ActionKind::Key:
            return Key(action, control);
        case ActionKind::Select:
            return Select(action, control);
        case ActionKind::Set:
            return Set(action, control);
        case ActionKind::Close:
            window.Unload();
            return;
        case ActionKind::Drop: {
            std::vector<Text> paths;
            for (const Text& path : action.paths) {
                paths.push_back(Absolute(path));
            }
            return window.FilesDropped(paths);
        }
        default:
            return Mouse(action, window, control);
    }
}

/// Nothing in the program asks yet for the right button.
void ScriptedUser::Mouse(const Action& action, model::Window& window, model::Control& control) {
    if (action.kind == ActionKind::RightClick) {
        return;
    }
    if (Misses(action, control)) {
        model::Control& beneath = CanvasOf(window);
        if (CanUse(window, beneath)) {
            Press(beneath);
        }
        return;
    }
    Press(control);
    if (action.kind != ActionKind::DoubleClick || !CanUse(window, control)) {
        return;
    }
    if (TakesEveryPress(control.Kind())) {
        Press(control);
    } else if (auto* list = dynamic_cast<model::ListBox*>(&control)) {
        list->DblClick();
    }
}

void ScriptedUser::Key(const Action& action, model::Control& control) {
    const int code = action.numbers.front();
    if (auto* window = dynamic_cast<model::Window*>(&control)) {
        window->KeyDown(code);
        PressShortcut(*window, code);
    } else if (auto* list = dynamic_cast<model::ListBox*>(&control)) {
        list->KeyDown(code);
    } else if (auto* picture = dynamic_cast<model::PictureBox*>(&control)) {
        picture->KeyDown(code);
    } else if (auto* player = dynamic_cast<model::Player*>(&control)) {
        player->KeyDown(code);
    }
}

void ScriptedUser::Menu(const Action& action) {
    model::Window& form1 = application_->windows.form1;
    auto& entry = dynamic_cast<model::MenuEntry&>(*form1.FindControl(action.name));
    if (!CanUse(form1)) {
        return;
    }
    if (Reachable(entry)) {
        entry.Click();
    }
}

void ScriptedUser::Select(const Action& action, model::Control& control) {
    auto& list = dynamic_cast<model::ListBox&>(control);
    for (const int row : action.numbers) {
        if (row < 0 || row >= list.ListCount()) {
            Fault(action, "no such row: " + std::to_string(row));
        }
    }
    for (int row = 0; row < list.ListCount(); ++row) {
        list.Select(row, std::find(action.numbers.begin(), action.numbers.end(), row) !=
                             action.numbers.end());
    }
    list.ListIndex = action.numbers.back();
    list.Click();
}

void ScriptedUser::Set(const Action& action, model::Control& control) {
    const Text& value = *action.text;
    if (auto* box = dynamic_cast<model::TextBox*>(&control)) {
        if (box->Content() != value) {
            box->Content = value;
            box->Change();
        }
    } else if (auto* check = dynamic_cast<model::CheckBox*>(&control)) {
        if ((check->Value != 0) != OnOrOff(value).value()) {
            ToggleCheck(*check);
        }
    } else if (auto* option = dynamic_cast<model::OptionButton*>(&control)) {
        if (!option->Value) {
            ChooseOption(*option);
        }
    }
}

void ScriptedUser::Print(const Action& action) {
    std::string error;
    const std::optional<ScriptValue> value = ReadByName(*application_, action.name, error);
    if (!value) {
        Fault(action, error);
    }
    around_.out << ToJson(*value) << std::endl;
    around_.trace.Event("print",
                        {{"name", text::FromUtf8(action.name)}, {"value", ToTraceValue(*value)}});
}

void ScriptedUser::Expect(const Action& action) {
    std::string error;
    const std::optional<ScriptValue> value = ReadByName(*application_, action.name, error);
    if (!value) {
        Fault(action, error);
    }
    const bool holds = Matches(*value, *action.text);
    if (!holds) {
        status_ = std::max(status_, kExitFailedExpectation);
        around_.err << Place(action) << "expected " << action.name << ' '
                    << text::ToUtf8(*action.text) << ", got " << ToJson(*value) << std::endl;
    }
    around_.trace.Event("expect", {{"name", text::FromUtf8(action.name)},
                                   {"value", ToTraceValue(*value)},
                                   {"expected", *action.text},
                                   {"ok", holds}});
}

void ScriptedUser::Shot(const Action& action) {
    model::Windows& windows = application_->windows;
    model::Window* window = action.window.empty() ? nullptr : windows.Find(action.window);
    if (!window) {
        window = windows.slidescreen.Visible ? static_cast<model::Window*>(&windows.slidescreen)
                                             : &windows.form1;
    }
    const std::string file = text::ToUtf8(*action.text);
    if (!shot_ || !shot_(*window, file)) {
        Fault(action, "no picture of " + window->Name() + " could be saved as " + file);
    }
}

bool ScriptedUser::CanUse(const model::Window& window) const {
    const model::Window* modal = around_.windows.ModalWindow();
    return window.Loaded && window.Reachable() && (!modal || modal == &window);
}

bool ScriptedUser::CanUse(const model::Window& window, const model::Control& control) const {
    const auto* visible = dynamic_cast<const model::VisibleControl*>(&control);
    return CanUse(window) && visible && visible->Reachable();
}

std::string ScriptedUser::Place(const Action& action) const {
    return fileName_ + ":" + std::to_string(action.line) + ": ";
}

void ScriptedUser::Fault(const Action& action, const std::string& reason) {
    status_ = kExitBadScript;
    ending_ = true;
    around_.err << Place(action) << reason << std::endl;
    throw platform::ProgramEnd{kExitBadScript};
}

}  // namespace robot

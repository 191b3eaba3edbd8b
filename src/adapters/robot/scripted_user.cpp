#include "adapters/robot/scripted_user.h"

#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <utility>

#include "adapters/robot/script_check.h"
#include "adapters/robot/values.h"
#include "model/controls.h"
#include "model/grid.h"
#include "model/list_controls.h"
#include "model/menu.h"
#include "model/picture_controls.h"
#include "model/scroll_bar.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"
#include "platform/monitors.h"

namespace robot {

namespace {

constexpr int kExitFailedExpectation = 1;
constexpr int kExitBadScript = 2;
constexpr int kTwipsInTwoPixels = 2 * platform::kTwipsPerPixel;

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

std::vector<Text> AbsolutePaths(const Action& action) {
    std::vector<Text> paths;
    for (const Text& path : action.paths) {
        paths.push_back(Absolute(path));
    }
    return paths;
}

/// Expectations of the trace that no other line follows look at the whole run.
size_t FirstAtEnd(const std::vector<Action>& script) {
    size_t first = script.size();
    while (first > 0 && LooksAtRun(script[first - 1].kind) &&
           script[first - 1].due.kind == Due::Next) {
        --first;
    }
    return first;
}

platform::Answer AnswerOf(const Text& word) {
    return word == u"yes"  ? platform::Answer::Yes
           : word == u"no" ? platform::Answer::No
           : word == u"ok" ? platform::Answer::Ok
                           : platform::Answer::Cancel;
}

/// Keys that menu entries take while their window has the keyboard, and their numbers.
struct ShortcutKey {
    int code;
    TextView name;
};
constexpr ShortcutKey kShortcutKeys[] = {
    {32, u"Space"}, {37, u"Left"}, {39, u"Right"}, {116, u"F5"}};

/// One entry at most, as of all that bear the key only one can be chosen. False when none was.
bool PressShortcut(model::Window& window, int code) {
    for (const ShortcutKey& key : kShortcutKeys) {
        if (key.code != code) {
            continue;
        }
        for (model::Control* control : window.Controls()) {
            auto* entry = dynamic_cast<model::MenuEntry*>(control);
            if (entry && entry->Shortcut() == key.name && entry->Reachable()) {
                return entry->Choose();
            }
        }
    }
    return false;
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

}  // namespace

ScriptedUser::ScriptedUser(std::vector<Action> script, std::string fileName,
                           Surroundings surroundings)
    : script_(std::move(script)),
      fileName_(std::move(fileName)),
      around_(surroundings),
      expectations_(surroundings.trace),
      atEnd_(FirstAtEnd(script_)) {
    if (std::any_of(script_.begin(), script_.end(),
                    [](const Action& action) { return LooksAtRun(action.kind); })) {
        around_.trace.Keep();
    }
}

void ScriptedUser::Attach(model::Application& application, Eyes eyes) {
    application_ = &application;
    eyes_ = std::move(eyes);
    for (size_t i = 0; i < script_.size(); ++i) {
        if (const std::string reason = WhyNot(application, script_[i]); !reason.empty()) {
            throw ScriptError(Place(script_[i]) + reason);
        }
        if (script_[i].kind == ActionKind::ExpectExit && i < atEnd_) {
            throw ScriptError(Place(script_[i]) + "the exit status is known at the script's end");
        }
    }
}

int ScriptedUser::ExitStatus(int programs) {
    if (status_ == kExitBadScript) {
        return status_;
    }
    const auto exits = [](const Action& action) { return action.kind == ActionKind::ExpectExit; };
    const bool expected = std::any_of(script_.begin(), script_.end(), exits);
    if (!std::exchange(judged_, true)) {
        JudgeEnd(programs);
        around_.err.flush();
    }
    return programs != 0 && !expected ? programs : status_;
}

void ScriptedUser::JudgeEnd(int programs) {
    for (size_t i = next_; i < atEnd_; ++i) {
        if (script_[i].kind == ActionKind::Expect || LooksAtRun(script_[i].kind)) {
            Fail(script_[i], "never reached: the program had ended");
        }
    }
    for (size_t i = atEnd_; i < script_.size(); ++i) {
        const Action& action = script_[i];
        if (action.kind != ActionKind::ExpectExit) {
            Judge(action);
        } else if (programs != action.numbers.front()) {
            Fail(action, "the program ended with " + std::to_string(programs));
        }
    }
    if (const std::string untold = expectations_.Untold(); !untold.empty()) {
        Fail(script_.back(), untold);
    }
}

std::optional<double> ScriptedUser::NextDue() const {
    if (ending_ || next_ >= atEnd_) {
        return std::nullopt;
    }
    const Due& due = script_[next_].due;
    switch (due.kind) {
        case Due::Absolute:
            return std::max(previousRun_, due.milliseconds);
        case Due::After:
            return previousRun_ + due.milliseconds;
        case Due::Next:
        case Due::During:
            break;
    }
    return previousRun_;
}

bool ScriptedUser::NextComesDuring() const {
    return next_ < atEnd_ && script_[next_].due.kind == Due::During;
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

void ScriptedUser::Run(const Action& action) {
    switch (action.kind) {
        case ActionKind::Menu:
            return Menu(action);
        case ActionKind::Answer:
            return around_.dialogs.answers.push_back(AnswerOf(*action.text));
        case ActionKind::Input:
            return around_.dialogs.inputAnswers.push_back(action.text);
        case ActionKind::Choose:
            return around_.dialogs.fileAnswers.push_back(AbsolutePaths(action));
        case ActionKind::Print:
            return Print(action);
        case ActionKind::Expect:
            return Expect(action);
        case ActionKind::ExpectTrace:
        case ActionKind::ExpectNo:
        case ActionKind::ExpectSlides:
        case ActionKind::ExpectSounds:
            return Judge(action);
        case ActionKind::Shot:
            return Shot(action);
        case ActionKind::Golden:
            return Golden(action);
        case ActionKind::Quit:
            return End();
        default:
            break;
    }
    model::Window& window = *application_->windows.Find(action.window);
    model::Control& control = *FindTarget(*application_, action);
    auto& target = static_cast<model::VisibleControl&>(control);
    if (!CanUse(window, control) || !Act(action, window, target)) {
        TraceUnheard(action);
    }
}

/// What a person does to a control that can be reached. False when it reached nothing.
bool ScriptedUser::Act(const Action& action, model::Window& window, model::VisibleControl& target) {
    switch (action.kind) {
        case ActionKind::Key:
            return Key(action, target);
        case ActionKind::Select:
            return Select(action, target);
        case ActionKind::Set:
            return Set(action, target);
        case ActionKind::Move:
            return AsList(target)->DragTo(action.numbers.front());
        case ActionKind::Close:
            window.Unload();
            return true;
        case ActionKind::Drop: {
            const std::vector<Text> paths = AbsolutePaths(action);
            // Where the control takes none, they fall to the window around it.
            return target.Drop(paths) || window.Drop(paths);
        }
        default:
            return Mouse(action, window, target);
    }
}

bool ScriptedUser::Mouse(const Action& action, model::Window& window,
                         model::VisibleControl& target) {
    model::MousePress press{action.kind == ActionKind::RightClick, target.Width / kTwipsInTwoPixels,
                            target.Height / kTwipsInTwoPixels};
    if (action.numbers.size() == 2) {
        press.x = action.numbers[0];
        press.y = action.numbers[1];
    }
    if (Misses(action, target)) {
        model::Control& beneath = CanvasOf(window);
        return CanUse(window, beneath) && static_cast<model::VisibleControl&>(beneath).Press(press);
    }
    const bool reached = target.Press(press);
    if (action.kind != ActionKind::DoubleClick || !CanUse(window, target)) {
        return reached;
    }
    return target.PressAgain(press) || reached;
}

bool ScriptedUser::Key(const Action& action, model::VisibleControl& target) {
    const int code = action.numbers.front();
    const bool reached = target.PressKey(code);
    if (auto* window = dynamic_cast<model::Window*>(&target)) {
        return PressShortcut(*window, code) || reached;
    }
    if (code != model::kKeyEnter && code != model::kKeyEscape) {
        return reached;
    }
    // Controls leave these two to the window around them, but for the Enter of buttons and files.
    if (code == model::kKeyEnter && target.Kind() == model::ControlKind::Button) {
        return target.Press() || reached;
    }
    const bool own = code == model::kKeyEnter && target.Kind() == model::ControlKind::FileList;
    return (!own && target.Parent().PressKey(code)) || reached;
}

void ScriptedUser::Menu(const Action& action) {
    model::Window& window = *application_->windows.Find(action.window);
    auto& entry = dynamic_cast<model::MenuEntry&>(*window.FindControl(action.name));
    if (!CanUse(window) || !entry.Choose()) {
        TraceUnheard(action);
    }
}

bool ScriptedUser::Select(const Action& action, model::VisibleControl& target) {
    const std::vector<int>& numbers = action.numbers;
    if (auto* grid = dynamic_cast<model::Grid*>(&target)) {
        const size_t end = numbers.size() - 2;
        if (!grid->Choose(numbers[0], numbers[1], numbers[end], numbers[end + 1])) {
            Fault(action, "no such cell");
        }
        return true;
    }
    model::ListBox& list = *AsList(target);
    for (const int row : numbers) {
        if (row < 0 || row >= list.ListCount()) {
            Fault(action, "no such row: " + std::to_string(row));
        }
    }
    return list.Choose(numbers);
}

bool ScriptedUser::Set(const Action& action, model::VisibleControl& target) {
    const Text& value = *action.text;
    if (auto* box = dynamic_cast<model::TextBox*>(&target)) {
        return box->Enter(value);
    }
    if (auto* check = dynamic_cast<model::CheckBox*>(&target)) {
        return (check->Value != 0) == OnOrOff(value).value() || check->Press();
    }
    if (auto* option = dynamic_cast<model::OptionButton*>(&target)) {
        return option->Value || option->Press();
    }
    if (auto* combo = dynamic_cast<model::ComboBox*>(&target)) {
        const auto row = std::find(combo->Rows().begin(), combo->Rows().end(), value);
        if (row == combo->Rows().end()) {
            Fault(action, "no such item: " + text::ToUtf8(value));
        }
        return combo->Choose({static_cast<int>(row - combo->Rows().begin())});
    }
    if (auto* folder = dynamic_cast<model::FolderList*>(&target)) {
        return folder->Open(Absolute(value));
    }
    if (auto* drive = dynamic_cast<model::DriveList*>(&target)) {
        return drive->Open(Absolute(value));
    }
    if (auto* calendar = dynamic_cast<model::Calendar*>(&target)) {
        return calendar->Choose(value);
    }
    auto* bar = dynamic_cast<model::ScrollBar*>(&target);
    return bar && bar->MoveTo(WholeNumber(value).value());
}

/// An act that no person could do, or that nobody listens to.
void ScriptedUser::TraceUnheard(const Action& action) {
    const std::string& part = action.kind == ActionKind::Menu ? action.name : action.control;
    const std::string name = part.empty() ? action.window : action.window + "." + part;
    around_.trace.Event("act", {{"action", text::FromUtf8(ActionWord(action.kind))},
                                {"name", text::FromUtf8(name)},
                                {"unheard", true}});
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
        Fail(action, "expected " + action.name + " " + text::ToUtf8(*action.text) + ", got " +
                         ToJson(*value));
    }
    around_.trace.Event("expect", {{"name", text::FromUtf8(action.name)},
                                   {"value", ToTraceValue(*value)},
                                   {"expected", *action.text},
                                   {"ok", holds}});
}

void ScriptedUser::Judge(const Action& action) {
    if (const std::string wrong = expectations_.Judge(action); !wrong.empty()) {
        Fail(action, wrong);
    }
}

void ScriptedUser::Fail(const Action& action, const std::string& reason) {
    status_ = std::max(status_, kExitFailedExpectation);
    around_.err << Place(action) << reason << std::endl;
}

void ScriptedUser::SaveShot(const Action& action, const std::string& file) {
    model::Windows& windows = application_->windows;
    model::Window* window = action.window.empty() ? nullptr : windows.Find(action.window);
    if (!window) {
        window = windows.slidescreen.Visible ? static_cast<model::Window*>(&windows.slidescreen)
                                             : &windows.form1;
    }
    if (!eyes_.shot || !eyes_.shot(*window, file)) {
        Fault(action, "no picture of " + window->Name() + " could be saved as " + file);
    }
}

void ScriptedUser::Shot(const Action& action) {
    SaveShot(action, text::ToUtf8(*action.text));
}

/// What is seen now is left beside the kept picture, unless they are the same.
void ScriptedUser::Golden(const Action& action) {
    namespace fs = std::filesystem;
    const fs::path kept = fs::path(fileName_).parent_path() / text::ToUtf8(*action.text);
    const fs::path actual = kept.parent_path() / (kept.stem().string() + "-ACTUAL.png");
    // Another run may look at the same picture at the same time.
    const fs::path mine = actual.string() + "." + std::to_string(getpid());
    SaveShot(action, mine.string());
    std::error_code error;
    if (eyes_.same && eyes_.same(kept.string(), mine.string())) {
        fs::remove(mine, error);
        return;
    }
    fs::rename(mine, actual, error);
    Fail(action, "other pixels than " + kept.string() + ": see " + actual.string());
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

// What all controls share. They are plain values with properties, declared as members of their
// window. Each knows its name, so that the logic, the view and scripts speak of the same thing, and
// each carries out what a person does to it, so that view and script only name the act.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "model/property.h"

namespace model {

class Window;

/// A change of `count` rows of a list from `row` on, told after it happened.
struct RowChange {
    enum Kind { Inserted, Removed, Replaced, Cleared } kind;
    int row = 0;
    int count = 1;
};

/// Views and tracers listen to controls. Listeners must outlive the control or be removed.
class Listener {
public:
    virtual ~Listener() = default;
    virtual void PropertyChanged(Control&, PropertyBase&) {}
    virtual void RowsChanged(Control&, const RowChange&) {}
};

/// Kind of a control, by which a view knows how to show it.
enum class ControlKind {
    Window,
    Button,
    CheckBox,
    OptionButton,
    Label,
    TextBox,
    ListBox,
    ComboBox,
    PictureBox,
    Image,
    Timer,
    MenuEntry,
    FileList,
    FolderList,
    DriveList,
    Grid,
    Calendar,
    ScrollBar,
    Frame,
    Panes,
    Player,
    Imaging
};

class Control {
public:
    Control(Window* window, ControlKind kind, std::string name);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    ControlKind Kind() const { return kind_; }
    /// "Command1"; an element of an array is "Picture2(3)".
    const std::string& Name() const { return name_; }
    /// The window it stands in; itself for a window.
    Window& Parent() const { return *window_; }

    const std::vector<PropertyBase*>& Properties() const { return properties_; }
    /// Null when there is none of that name (compared without case).
    PropertyBase* FindProperty(std::string_view name) const;

    void Listen(Listener* listener);
    void Unlisten(Listener* listener);

protected:
    void AnnounceRows(const RowChange& change);

private:
    friend class PropertyBase;
    Window* window_;
    ControlKind kind_;
    std::string name_;
    std::vector<PropertyBase*> properties_;
    std::vector<Listener*> listeners_;
};

/// A press of the mouse and its release. The place is in the control's pixels.
struct MousePress {
    bool right = false;
    int x = 0;
    int y = 0;
};

/// What every visible control has. Positions and sizes are twips.
///
/// Press to Drop are the acts of a person. They do nothing unless the control is Reachable, and
/// tell whether they reached anything: a handler, or a value of the control's own.
class VisibleControl : public Control {
public:
    using Control::Control;
    Property<bool> Enabled{*this, "Enabled", true};
    Property<bool> Visible{*this, "Visible", true};
    Property<int> Left{*this, "Left"};
    Property<int> Top{*this, "Top"};
    Property<int> Width{*this, "Width"};
    Property<int> Height{*this, "Height"};
    Event<> Click, DblClick;
    Event<int> KeyDown;  // number of the key: 13 Enter, 27 Esc, 45 Insert, 46 Delete
    Event<const std::vector<Text>&> FilesDropped;

    /// A person can reach it: visible and enabled.
    bool Reachable() const { return Visible && Enabled; }

    bool Press(const MousePress& press = {}) { return Reachable() && OnPress(press); }
    /// The second press of a double click; the first was a Press of its own.
    bool PressAgain(const MousePress& press = {}) { return Reachable() && OnPressAgain(press); }
    bool PressKey(int code) { return Reachable() && OnKey(code); }
    bool Drop(const std::vector<Text>& paths) { return Reachable() && FilesDropped(paths); }

protected:
    virtual bool OnPress(const MousePress& press) { return !press.right && Click(); }
    virtual bool OnPressAgain(const MousePress& press) { return !press.right && DblClick(); }
    virtual bool OnKey(int code) { return KeyDown(code); }
};

}  // namespace model

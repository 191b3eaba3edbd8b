// Controls: plain values with properties, declared as members of their window. Each knows its
// name, so that the logic, the view and scripts speak of the same thing.
#pragma once

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "model/property.h"
#include "platform/canvas.h"
#include "platform/imaging.h"
#include "platform/region.h"

namespace model {

class Window;

/// Face of buttons, as most of the desktop's themes have it.
constexpr int kSystemButtonColor = 0xF0F0F0;

/// A change of a list's rows, told after it happened.
struct RowChange {
    enum Kind { Inserted, Removed, Replaced, Cleared } kind;
    int row = 0;
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
    Timer,
    MenuEntry,
    FileList,
    FolderList,
    DriveList,
    Grid,
    Calendar,
    ScrollBar,
    Frame,
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

/// What every visible control has. Positions and sizes are twips.
class VisibleControl : public Control {
public:
    using Control::Control;
    Property<bool> Enabled{*this, "Enabled", true};
    Property<bool> Visible{*this, "Visible", true};
    Property<int> Left{*this, "Left"};
    Property<int> Top{*this, "Top"};
    Property<int> Width{*this, "Width"};
    Property<int> Height{*this, "Height"};

    /// A person can reach it: visible and enabled.
    bool Reachable() const { return Visible && Enabled; }
};

class Button : public VisibleControl {
public:
    Button(Window* window, std::string name, Text caption = {});
    Property<Text> Caption;
    Event<> Click;
};

class CheckBox : public VisibleControl {
public:
    CheckBox(Window* window, std::string name, Text caption = {});
    Property<Text> Caption;
    Property<int> Value{*this, "Value"};  // 0 off, 1 on
    Event<> Click;                        // after Value was changed by a person
};

class OptionButton : public VisibleControl {
public:
    OptionButton(Window* window, std::string name, Text caption = {});
    Property<Text> Caption;
    Property<bool> Value{*this, "Value"};
    Event<> Click;
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

class Frame : public VisibleControl {
public:
    Frame(Window* window, std::string name, Text caption = {});
    Property<Text> Caption;
};

class TextBox : public VisibleControl {
public:
    TextBox(Window* window, std::string name);
    Property<Text> Content{*this, "Text"};
    Event<> Change;
};

/// Rows from 0. Row changes are announced one by one.
class ListBox : public VisibleControl {
public:
    ListBox(Window* window, std::string name);
    Property<int> ListIndex{*this, "ListIndex", -1};  // current row, -1 none
    Property<int> TopIndex{*this, "TopIndex"};
    Event<> Click, DblClick;
    Event<int> KeyDown;

    int ListCount() const { return static_cast<int>(rows_.size()); }
    /// Empty text for a row that is not there.
    const Text& List(int row) const;
    const std::deque<Text>& Rows() const { return rows_; }
    void AddItem(Text row);
    void AddItem(Text row, int before);
    /// Nothing happens for a row that is not there.
    void RemoveItem(int row);
    void SetRow(int row, Text value);
    void Clear();
    bool Selected(int row) const;
    void Select(int row, bool on);
    int SelCount() const;

private:
    struct NoRow;
    std::deque<Text> rows_;
    std::deque<bool> selected_;
};

/// Values of PictureBox::MousePointer.
constexpr int kPointerDefault = 0, kPointerCustom = 99;  // custom: a hand that says "press here"

/// A surface with a picture under what was drawn on it. With AutoSize it only holds the picture
/// and its size follows it; otherwise its canvas has the control's size, in units of 15 twips.
class PictureBox : public VisibleControl {
public:
    PictureBox(Window* window, std::string name, bool autoSize = false);
    Property<int> BackColor{*this, "BackColor", 0};  // 0x00BBGGRR
    Property<bool> AutoRedraw{*this, "AutoRedraw", true};
    Property<bool> Border{*this, "Border", false};
    Property<int> MousePointer{*this, "MousePointer", kPointerDefault};
    Event<> Click;
    Event<int> KeyDown;
    /// Takes the keyboard; attached by the view.
    Event<> SetFocus;
    /// Called when what is seen changed without the canvas's pixels: the region, an AutoSize box's
    /// picture, the canvas's scale. Attached by the view.
    Event<> Refresh;

    platform::Canvas canvas;

    const platform::BitmapPtr& Picture() const { return picture_; }
    /// Shows the picture at the top left over the back colour; what was drawn is gone. Null: none.
    void SetPicture(const platform::BitmapPtr& picture);
    /// The same for one that counts as `size` units.
    void SetPicture(platform::BitmapPtr picture, platform::Size size);
    /// Shows the other box's picture.
    void SetPictureOf(const PictureBox& other) { SetPicture(other.picture_, other.pictureSize_); }
    /// The pixels that a view shows.
    const platform::Bitmap& Shown() const;
    /// What was drawn is gone, the picture stays.
    void Cls();
    /// Only these pixels of the picture are seen and take clicks; null: all.
    void SetWindowRgn(platform::RegionPtr region);
    const platform::RegionPtr& WindowRgn() const { return region_; }
    /// True when a press at that place of the box, in units, is a press on it.
    bool TakesPress(int x, int y) const;
    /// Sets the control's size (twips) and the canvas's, keeping what is on it. What the box grows
    /// by shows the picture, else the back colour.
    void SetSize(int widthTwips, int heightTwips);
    /// The same with a canvas of so many pixels.
    void SetSize(int widthTwips, int heightTwips, platform::Size pixels);
    /// Units inside: of the picture with AutoSize, of the canvas otherwise.
    int ScaleWidth() const;
    int ScaleHeight() const;

private:
    bool autoSize_;
    platform::BitmapPtr picture_;
    platform::Size pictureSize_;  // units
    platform::RegionPtr region_;
};

/// Shows what the program's video player plays (platform::Video).
class Player : public VisibleControl {
public:
    Player(Window* window, std::string name);
    Property<Text> uiMode{*this, "uiMode"};  // "none": without buttons of its own
    Property<Text> URL{*this, "URL"};        // full path of the file that is or was open
    Event<> Click;
    Event<int> KeyDown;
};

/// Ticks while Enabled and Interval > 0; run by the event loop.
class Timer : public Control {
public:
    Timer(Window* window, std::string name, int interval = 0, bool enabled = false);
    Property<int> Interval;  // milliseconds, 0 never ticks
    Property<bool> Enabled;
    Event<> Tick;
};

/// An entry of a menu bar: with children a menu, without a command. Order is that of declaration.
class MenuEntry : public Control {
public:
    MenuEntry(Window* window, std::string name, Text caption, MenuEntry* parentEntry = nullptr);
    Property<Text> Caption;
    Property<bool> Enabled{*this, "Enabled", true};
    Property<bool> Visible{*this, "Visible", true};
    Property<bool> Checked{*this, "Checked", false};
    Property<Text> Shortcut{*this, "Shortcut"};  // "Ctrl+N", "F5", "Space"; empty: none
    Event<> Click;

    MenuEntry* ParentEntry() const { return parentEntry_; }
    const std::vector<MenuEntry*>& Children() const { return children_; }

private:
    MenuEntry* parentEntry_;
    std::vector<MenuEntry*> children_;
};

/// Controls of one name told apart by index: "Picture2(0)" and on.
template <class Kind>
class ControlArray {
public:
    /// `rest` goes to every element behind its window and name.
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

/// The entries of a radio menu: index from 0, at most one checked.
class MenuArray {
public:
    MenuArray(Window* window, const std::string& name, MenuEntry& parent,
              std::initializer_list<const char16_t*> captions);
    MenuEntry& operator()(int index) { return *entries_.at(static_cast<size_t>(index)); }
    int Count() const { return static_cast<int>(entries_.size()); }
    const std::string& Name() const { return name_; }
    /// Checks the entry and unchecks the others; an index that is not there unchecks all.
    void Check(int index);
    /// A person chose the entry.
    Event<int> Click;

private:
    std::string name_;
    std::vector<std::unique_ptr<MenuEntry>> entries_;
};

/// An imaging control standing in a window.
class LeadControl : public Control {
public:
    LeadControl(Window* window, std::string name);
    /// Given at start-up; lives as long as the window.
    std::unique_ptr<platform::ImagingControl> imaging;
};

}  // namespace model

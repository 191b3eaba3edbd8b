// A window: its place, its life, and the controls that stand in it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/control.h"
#include "platform/event_loop.h"

namespace model {

/// Mouse pointers that mean something to the logic.
enum MousePointerShape : int { kPointerNormal = 0, kPointerBusy = 11, kPointerArrowBusy = 13 };

/// Values of a window's WindowState.
enum WindowStates : int { kWindowNormal = 0, kWindowMinimised = 1, kWindowMaximised = 2 };

/// Numbers of keys.
constexpr int kKeyEnter = 13, kKeyEscape = 27, kKeyInsert = 45, kKeyDelete = 46, kKeyF5 = 116;

class Window : public VisibleControl {
public:
    explicit Window(std::string name, Text caption = {});

    Property<Text> Caption;
    Property<int> WindowState{*this, "WindowState"};  // one of WindowStates
    Property<int> MousePointer{*this, "MousePointer"};
    Property<int> CursorCount{*this, "CursorCount"};  // below 0 no pointer is seen over the window
    Property<int> BackColor{*this, "BackColor"};
    Property<bool> Loaded{*this, "Loaded", false};
    Property<bool> Modal{*this, "Modal", false};  // while it is shown no other window takes input

    Event<> OnLoad;
    Event<> OnActivate;
    Event<> OnResize;
    Event<bool&> OnQueryUnload;  // set true to stay
    Event<> OnUnload;
    Event<> OnDeactivate;  // another window took the keyboard
    Event<> OnPaint;  // it was painted after another window had covered it, or for the first time

    /// Buttons that Enter and Esc press, wherever in the window the keyboard is; null: none. A
    /// button that has the keyboard keeps its own Enter.
    VisibleControl* EnterPresses = nullptr;
    VisibleControl* EscPresses = nullptr;

    /// A view shows this window. A menu must not open one without a view, least of all in place
    /// of another window.
    bool HasView = false;

    /// Fires OnLoad unless the window is loaded.
    void Load();
    /// Loads and becomes visible; unless it was visible already fires OnResize (the first time
    /// after a load) and OnActivate.
    void Show();
    /// Shows the window as a modal one and returns when it is hidden or unloaded; handlers run
    /// meanwhile. A handler of the showing may end it at once. May throw ProgramEnd.
    void ShowModal(platform::EventLoop& loop);
    void Hide();
    /// Asks OnQueryUnload, fires OnUnload, hides. False when a handler refused. Does nothing for
    /// a window that is not loaded or is unloading.
    bool Unload();
    /// True inside Unload once no handler refused.
    bool Unloading() const { return unloading_; }
    /// Sets the size (twips) as a person or the window system does: fires OnResize on a change.
    void ResizeTo(int widthTwips, int heightTwips);

    const std::vector<Control*>& Controls() const { return controls_; }
    /// By its name, "Picture2(3)" for an element; without case. Null when there is none.
    Control* FindControl(std::string_view name) const;

protected:
    bool OnKey(int code) override;

private:
    friend class Control;
    std::vector<Control*> controls_;
    bool unloading_ = false;
    bool shownOnce_ = false;
};

}  // namespace model

#include "model/window.h"

#include "model/same_name.h"

namespace model {

Window::Window(std::string name, Text caption)
    : VisibleControl(this, ControlKind::Window, std::move(name)),
      Caption(*this, "Caption", std::move(caption)) {
    Visible = false;
}

void Window::Load() {
    if (!Loaded) {
        Loaded = true;
        OnLoad();
    }
}

void Window::Show() {
    Load();
    if (!Visible) {
        Visible = true;
        if (!shownOnce_) {
            shownOnce_ = true;
            OnResize();
        }
        OnActivate();
    }
}

void Window::ShowModal(platform::EventLoop& loop) {
    Modal = true;
    Show();
    loop.RunUntil([this] { return !Visible; });
    Modal = false;
}

void Window::Hide() {
    Visible = false;
}

bool Window::OnKey(int code) {
    const bool heard = KeyDown(code);
    VisibleControl* pressed = code == kKeyEnter    ? EnterPresses
                              : code == kKeyEscape ? EscPresses
                                                   : nullptr;
    return (pressed && pressed->Press()) || heard;
}

bool Window::Unload() {
    if (!Loaded || unloading_) {
        return true;
    }
    bool stay = false;
    OnQueryUnload(stay);
    if (stay) {
        return false;
    }
    // Reset by a guard: a handler may leave the program by an exception.
    struct Guard {
        bool& flag;
        explicit Guard(bool& f) : flag(f) { flag = true; }
        ~Guard() { flag = false; }
    } guard(unloading_);
    OnUnload();
    Visible = false;
    Loaded = false;
    shownOnce_ = false;
    return true;
}

void Window::ResizeTo(int widthTwips, int heightTwips) {
    if (widthTwips != Width() || heightTwips != Height()) {
        Width = widthTwips;
        Height = heightTwips;
        OnResize();
    }
}

Control* Window::FindControl(std::string_view name) const {
    for (Control* control : controls_) {
        if (SameName(control->Name(), name)) {
            return control;
        }
    }
    return nullptr;
}

}  // namespace model

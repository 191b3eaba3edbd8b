#include "model/control.h"

#include <algorithm>

#include "model/window.h"
#include "platform/monitors.h"

namespace model {

namespace {

bool SameName(std::string_view a, std::string_view b) {
    auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return lower(x) == lower(y); });
}

int ToPixels(int twips) {
    return twips / platform::kTwipsPerPixel;
}

}  // namespace

PropertyBase::PropertyBase(Control& owner, const char* name) : owner_(owner), name_(name) {
    owner.properties_.push_back(this);
}

void PropertyBase::Announce() {
    // By index: a listener may add or remove listeners.
    for (size_t i = 0; i < owner_.listeners_.size(); ++i) {
        owner_.listeners_[i]->PropertyChanged(owner_, *this);
    }
}

Control::Control(Window* window, ControlKind kind, std::string name)
    : window_(window), kind_(kind), name_(std::move(name)) {
    if (kind != ControlKind::Window) {
        window->controls_.push_back(this);
    }
}

PropertyBase* Control::FindProperty(std::string_view name) const {
    for (PropertyBase* property : properties_) {
        if (SameName(property->Name(), name)) {
            return property;
        }
    }
    return nullptr;
}

void Control::Listen(Listener* listener) {
    listeners_.push_back(listener);
}

void Control::Unlisten(Listener* listener) {
    std::erase(listeners_, listener);
}

void Control::AnnounceRows(const RowChange& change) {
    for (size_t i = 0; i < listeners_.size(); ++i) {
        listeners_[i]->RowsChanged(*this, change);
    }
}

Button::Button(Window* window, std::string name, Text caption)
    : VisibleControl(window, ControlKind::Button, std::move(name)),
      Caption(*this, "Caption", std::move(caption)) {}

CheckBox::CheckBox(Window* window, std::string name, Text caption)
    : VisibleControl(window, ControlKind::CheckBox, std::move(name)),
      Caption(*this, "Caption", std::move(caption)) {}

OptionButton::OptionButton(Window* window, std::string name, Text caption)
    : VisibleControl(window, ControlKind::OptionButton, std::move(name)),
      Caption(*this, "Caption", std::move(caption)) {}

Label::Label(Window* window, std::string name, Text caption)
    : VisibleControl(window, ControlKind::Label, std::move(name)),
      Caption(*this, "Caption", std::move(caption)) {}

Frame::Frame(Window* window, std::string name, Text caption)
    : VisibleControl(window, ControlKind::Frame, std::move(name)),
      Caption(*this, "Caption", std::move(caption)) {}

TextBox::TextBox(Window* window, std::string name)
    : VisibleControl(window, ControlKind::TextBox, std::move(name)) {}

ListBox::ListBox(Window* window, std::string name)
    : VisibleControl(window, ControlKind::ListBox, std::move(name)) {}

const Text& ListBox::List(int row) const {
    static const Text none;
    return row >= 0 && row < ListCount() ? rows_[static_cast<size_t>(row)] : none;
}

void ListBox::AddItem(Text row) {
    AddItem(std::move(row), ListCount());
}

void ListBox::AddItem(Text row, int before) {
    before = std::clamp(before, 0, ListCount());
    rows_.insert(rows_.begin() + before, std::move(row));
    selected_.insert(selected_.begin() + before, false);
    AnnounceRows({RowChange::Inserted, before});
}

void ListBox::RemoveItem(int row) {
    if (row < 0 || row >= ListCount()) {
        return;
    }
    rows_.erase(rows_.begin() + row);
    selected_.erase(selected_.begin() + row);
    AnnounceRows({RowChange::Removed, row});
    if (ListIndex >= ListCount()) {
        ListIndex = ListCount() - 1;
    }
}

void ListBox::SetRow(int row, Text value) {
    if (row >= 0 && row < ListCount()) {
        rows_[static_cast<size_t>(row)] = std::move(value);
        AnnounceRows({RowChange::Replaced, row});
    }
}

void ListBox::Clear() {
    rows_.clear();
    selected_.clear();
    AnnounceRows({RowChange::Cleared, 0});
    ListIndex = -1;
    TopIndex = 0;
}

bool ListBox::Selected(int row) const {
    return row >= 0 && row < ListCount() && selected_[static_cast<size_t>(row)];
}

void ListBox::Select(int row, bool on) {
    if (row >= 0 && row < ListCount() && selected_[static_cast<size_t>(row)] != on) {
        selected_[static_cast<size_t>(row)] = on;
        AnnounceRows({RowChange::Replaced, row});
    }
}

int ListBox::SelCount() const {
    return static_cast<int>(std::count(selected_.begin(), selected_.end(), true));
}

PictureBox::PictureBox(Window* window, std::string name, bool autoSize)
    : VisibleControl(window, ControlKind::PictureBox, std::move(name)), autoSize_(autoSize) {}

void PictureBox::SetPicture(const platform::BitmapPtr& picture) {
    SetPicture(picture,
               picture ? platform::Size{picture->width, picture->height} : platform::Size());
}

void PictureBox::SetPicture(platform::BitmapPtr picture, platform::Size size) {
    picture_ = std::move(picture);
    pictureSize_ = picture_ ? size : platform::Size();
    if (autoSize_) {
        Width = ScaleWidth() * platform::kTwipsPerPixel;
        Height = ScaleHeight() * platform::kTwipsPerPixel;
        Refresh();
    } else {
        Cls();
    }
}

const platform::Bitmap& PictureBox::Shown() const {
    return autoSize_ && picture_ ? *picture_ : canvas.Pixels();
}

void PictureBox::SetWindowRgn(platform::RegionPtr region) {
    region_ = std::move(region);
    Refresh();
}

bool PictureBox::TakesPress(int x, int y) const {
    const bool inBox = x >= 0 && y >= 0 && x < ToPixels(Width) && y < ToPixels(Height);
    if (!inBox || !region_) {
        return inBox;
    }
    const platform::Bitmap& shown = Shown();
    const platform::Scale scale{{ScaleWidth(), ScaleHeight()}, {shown.width, shown.height}};
    return region_->Contains((scale.X(x) + scale.X(x + 1)) / 2, (scale.Y(y) + scale.Y(y + 1)) / 2);
}

void PictureBox::Cls() {
    canvas.Cover(static_cast<platform::Color>(BackColor()), picture_, pictureSize_);
}

void PictureBox::SetSize(int widthTwips, int heightTwips) {
    SetSize(widthTwips, heightTwips, {ToPixels(widthTwips), ToPixels(heightTwips)});
}

void PictureBox::SetSize(int widthTwips, int heightTwips, platform::Size pixels) {
    Width = widthTwips;
    Height = heightTwips;
    const platform::Size size{std::max(0, ToPixels(widthTwips)),
                              std::max(0, ToPixels(heightTwips))};
    const platform::Scale scale{size, {std::max(0, pixels.width), std::max(0, pixels.height)}};
    if (scale == canvas.Scaling()) {
        return;
    }
    const auto [width, height] = size;
    const int oldWidth = canvas.Width();
    const int oldHeight = canvas.Height();
    canvas.Resize(scale, static_cast<platform::Color>(BackColor()));
    Refresh();
    if (!picture_) {
        return;
    }
    // The picture is whole again where a smaller box had cut it off.
    const auto show = [&](const platform::Rect& area) {
        canvas.Lay(scale.ToPixels(area), *picture_,
                   scale.ToPixels(platform::Rect{0, 0, pictureSize_.width, pictureSize_.height}));
    };
    show({oldWidth, 0, width - oldWidth, height});
    show({0, oldHeight, width, height - oldHeight});
}

int PictureBox::ScaleWidth() const {
    return autoSize_ ? pictureSize_.width : canvas.Width();
}

int PictureBox::ScaleHeight() const {
    return autoSize_ ? pictureSize_.height : canvas.Height();
}

Player::Player(Window* window, std::string name)
    : VisibleControl(window, ControlKind::Player, std::move(name)) {}

Timer::Timer(Window* window, std::string name, int interval, bool enabled)
    : Control(window, ControlKind::Timer, std::move(name)),
      Interval(*this, "Interval", interval),
      Enabled(*this, "Enabled", enabled) {}

MenuEntry::MenuEntry(Window* window, std::string name, Text caption, MenuEntry* parentEntry)
    : Control(window, ControlKind::MenuEntry, std::move(name)),
      Caption(*this, "Caption", std::move(caption)),
      parentEntry_(parentEntry) {
    if (parentEntry_) {
        parentEntry_->children_.push_back(this);
    }
}

MenuArray::MenuArray(Window* window, const std::string& name, MenuEntry& parent,
                     std::initializer_list<const char16_t*> captions)
    : name_(name) {
    int index = 0;
    for (const char16_t* caption : captions) {
        entries_.push_back(std::make_unique<MenuEntry>(
            window, name + "(" + std::to_string(index) + ")", caption, &parent));
        entries_.back()->Click = [this, index] { Click(index); };
        ++index;
    }
}

void MenuArray::Check(int index) {
    for (int i = 0; i < Count(); ++i) {
        (*this)(i).Checked = i == index;
    }
}

LeadControl::LeadControl(Window* window, std::string name)
    : Control(window, ControlKind::Imaging, std::move(name)) {}

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

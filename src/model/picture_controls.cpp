#include "model/picture_controls.h"

#include <algorithm>

#include "platform/monitors.h"

namespace model {

namespace {

int ToPixels(int twips) {
    return twips / platform::kTwipsPerPixel;
}

}  // namespace

bool PointedControl::Release(const MousePress& press, bool inside) {
    const bool up = Reachable() && MouseUp(press);
    const bool clicked = inside && !press.right && Reachable() && Click();
    return up || clicked;
}

bool PointedControl::OnPress(const MousePress& press) {
    const bool down = HoldDown(press);
    return Release(press) || down;
}

bool PointedControl::OnPressAgain(const MousePress& press) {
    return DblClick && !press.right ? DblClick() : OnPress(press);
}

PictureBox::PictureBox(Window* window, std::string name, bool autoSize)
    : PointedControl(window, ControlKind::PictureBox, std::move(name)), autoSize_(autoSize) {}

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

Image::Image(Window* window, std::string name)
    : PointedControl(window, ControlKind::Image, std::move(name)) {}

void Image::SetPicture(platform::BitmapPtr picture) {
    picture_ = std::move(picture);
    Refresh();
}

Player::Player(Window* window, std::string name)
    : VisibleControl(window, ControlKind::Player, std::move(name)) {}

}  // namespace model

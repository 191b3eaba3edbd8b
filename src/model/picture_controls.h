// Surfaces with pictures: the picture box with its canvas, the stretching image, the video player.
#pragma once

#include <string>

#include "model/control.h"
#include "platform/canvas.h"
#include "platform/region.h"

namespace model {

/// Values of PictureBox::MousePointer.
constexpr int kPointerDefault = 0, kPointerCustom = 99;  // custom: a hand that says "press here"

/// A control that tells where the mouse is. A press is mouse down, mouse up and, with the left
/// button, a click; without a handler for double clicks the second press is a press like the first.
class PointedControl : public VisibleControl {
public:
    using VisibleControl::VisibleControl;
    Event<const MousePress&> MouseDown, MouseUp;
    Event<const MousePress&> MouseMove;  // a button is held; `right`: the right one

    /// The parts of a press, for views that see them one by one.
    bool HoldDown(const MousePress& press) { return Reachable() && MouseDown(press); }
    bool Drag(const MousePress& press) { return Reachable() && MouseMove(press); }
    /// `inside`: over the control, where it began.
    bool Release(const MousePress& press, bool inside = true);

protected:
    bool OnPress(const MousePress& press) override;
    bool OnPressAgain(const MousePress& press) override;
};

/// A surface with a picture under what was drawn on it. With AutoSize it only holds the picture
/// and its size follows it; otherwise its canvas has the control's size, in units of 15 twips.
class PictureBox : public PointedControl {
public:
    PictureBox(Window* window, std::string name, bool autoSize = false);
    Property<int> BackColor{*this, "BackColor", 0};  // 0x00BBGGRR
    Property<bool> AutoRedraw{*this, "AutoRedraw", true};
    Property<bool> Border{*this, "Border", false};
    Property<int> MousePointer{*this, "MousePointer", kPointerDefault};
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

/// A picture that is shown at the control's size, whatever its own.
class Image : public PointedControl {
public:
    Image(Window* window, std::string name);
    /// What is seen changed. Attached by the view.
    Event<> Refresh;

    const platform::BitmapPtr& Picture() const { return picture_; }
    /// Null: none.
    void SetPicture(platform::BitmapPtr picture);

private:
    platform::BitmapPtr picture_;
};

/// Shows what the program's video player plays (platform::Video).
class Player : public VisibleControl {
public:
    Player(Window* window, std::string name);
    Property<Text> uiMode{*this, "uiMode"};  // "none": without buttons of its own
    Property<Text> URL{*this, "URL"};        // full path of the file that is or was open
};

}  // namespace model

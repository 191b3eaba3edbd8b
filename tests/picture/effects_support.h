// A full screen with a picture whose pixels all differ, for the tests of effects.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "model/picture_controls.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_screen.h"
#include "picture/effect_context.h"
#include "picture/effect_plan.h"
#include "picture/effects.h"
#include "picture/screen.h"
#include "support/fake_platform.h"

namespace picture_tests {

using platform::Rect;

/// Every area of the bands in order.
inline std::vector<Rect> Areas(const picture::EffectPlan& plan) {
    std::vector<Rect> areas;
    for (const picture::EffectBand& band : plan.bands) {
        areas.push_back(band.area);
    }
    return areas;
}

inline bool Holds(const Rect& area, int x, int y) {
    return x >= area.x && x < area.x + area.width && y >= area.y && y < area.y + area.height;
}

/// Rectangles of the effects in drawing order, worked out by the rule of each as on paper.
std::vector<Rect> RuleAreas(int number, int step, bool erasing, platform::Size size, int slits);

struct Screening : fakes::FakePlatform {
    static constexpr platform::Color kGround = 0x302010;

    model::ShowState& state = app.state;
    model::PictureBox& canvas = app.windows.slidescreen.P2;
    platform::Size size;

    /// Pictures stand in the middle.
    Screening(platform::Size screen, platform::Size picture) : size(picture) {
        monitors.monitors = {{0, 0, screen.width, screen.height}};
        app.windows.slidescreen.Width = screen.width * platform::kTwipsPerPixel;
        app.windows.slidescreen.Height = screen.height * platform::kTwipsPerPixel;
        picture::SizeLayers(app);
        auto bitmap = std::make_shared<platform::Bitmap>(picture.width, picture.height);
        for (int y = 0; y < picture.height; ++y) {
            for (int x = 0; x < picture.width; ++x) {
                bitmap->Row(y)[x] = PixelOf(x, y);
            }
        }
        app.windows.form4.Picture1.SetPicture(bitmap);
        picture::CreateEffectContext(app);
        canvas.canvas.Fill(kGround);
        state.FullScreenActive = 1;
        state.EffectSpeedFactor = 2;
        state.SlideIndex = 2;
    }
    static platform::Pixel PixelOf(int x, int y) {
        return 0xFF000000u | static_cast<uint32_t>(0x404040 + y * 1000 + x);
    }
    /// Colour of the ground beside the picture's place, of the picture in it.
    platform::Color ShownColor(int x, int y) const {
        const int px = x - state.PictureX;
        const int py = y - state.PictureY;
        return Holds({0, 0, size.width, size.height}, px, py) ? platform::ToColor(PixelOf(px, py))
                                                              : kGround;
    }
    bool WholePictureStands() const {
        return Shows([&](int, int) { return true; });
    }
    /// The canvas is `expected` pixel by pixel.
    bool Matches(const std::function<platform::Color(int, int)>& expected) const {
        for (int y = 0; y < canvas.canvas.Height(); ++y) {
            for (int x = 0; x < canvas.canvas.Width(); ++x) {
                if (canvas.canvas.Point(x, y) != expected(x, y)) {
                    return false;
                }
            }
        }
        return true;
    }
    /// The picture stands where `drawn` (pixels of the picture), the ground elsewhere.
    bool Shows(const std::function<bool(int, int)>& drawn) const {
        return Matches([&](int x, int y) {
            return drawn(x - state.PictureX, y - state.PictureY) ? ShownColor(x, y) : kGround;
        });
    }
};

}  // namespace picture_tests

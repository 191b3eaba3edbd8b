// A collage under test: a full-screen show with an overlay on a small screen.
#pragma once

#include <string>
#include <vector>

#include "model/picture_controls.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_list.h"
#include "picture/overlay.h"
#include "playback/show_support.h"

namespace picture {

/// A screen of 100 × 60 pixels on dark grey ground. Pictures are one colour each, come whole, and
/// are framed; macros are on but there are none.
class Collage : public playback_tests::Show {
public:
    model::PictureBox& holder = windows.form4.Picture1;

    explicit Collage(int16_t overlayMode, platform::Size pixels = {100, 60}) : Show(0) {
        monitors.monitors = {{0, 0, pixels.width, pixels.height}};
        state.OverlayMode = overlayMode;
        state.TextMacroFlag = 0;
        state.ShowEffect = 11;
        GoFullScreen();
        ResetCanvasGround(app);
    }

    /// A slide at the end of the list. `colour` is rrggbb.
    void Add(int width, int height, const std::string& colour) {
        const Text path = PathOf(form3.List1.ListCount() + 1);
        files.Put(path,
                  "PIC " + std::to_string(width) + " " + std::to_string(height) + " " + colour);
        AddSlide(path);
    }
    /// The slide with its top left at the share of the room that the screen leaves.
    void StepAt(int slide, double xShare, double yShare) {
        state.PicturePosition = 1;
        loop.randomNumbers.insert(loop.randomNumbers.end(), {xShare, yShare});
        Step(slide);
    }
    std::vector<model::PictureBox*> Layers() { return {&screen.P2, &screen.P3, &screen.P4}; }
    platform::Pixel At(const model::PictureBox& layer, int x, int y) const {
        return layer.canvas.Pixels().Row(y)[x];
    }
    platform::Pixel OnScreen(int x, int y) const { return At(screen.P2, x, y); }

    /// What the imaging controls were asked for since the last call, without the loads.
    std::vector<std::string> Filters() {
        std::vector<std::string> found;
        for (; seen_ < imaging.log.size(); ++seen_) {
            if (!imaging.log[seen_].starts_with("load ")) {
                found.push_back(imaging.log[seen_]);
            }
        }
        return found;
    }

private:
    size_t seen_ = 0;
};

constexpr platform::Pixel kGround = 0xFF808080u, kWhite = 0xFFFFFFFFu, kBlack = 0xFF000000u;

}  // namespace picture

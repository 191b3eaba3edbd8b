// Plays an effect on the full-screen canvas.
#pragma once

#include <string_view>

#include "model/application.h"
#include "picture/effect_plan.h"

namespace picture {

/// The canvas and the picture on it as an effect found them. Handlers that run while the effect
/// yields may close the window or bring another picture: then the effect has nothing to draw on.
class EffectScene {
public:
    explicit EffectScene(Application& app) : app_(app), source_(app.state.EffectDc) {}

    bool Gone() const;
    /// EffectStop was set, or the scene is gone.
    bool Stopped() const;
    /// Pixels of P2 that the picture covers which stands there or comes.
    platform::Size PictureSize() const;
    /// The canvas in pixels of the picture: where it stands begins at (0, 0).
    platform::Rect CanvasArea() const;
    /// Copies or blackens a rectangle of the picture, in pixels, at its place on P2.
    void Draw(const platform::Rect& area, platform::RasterOp operation);
    void DrawWhole(platform::RasterOp operation);

private:
    Application& app_;
    platform::BitmapPtr source_;
};

/// What a show effect and an erase effect differ in.
struct EffectTask {
    TextView which;  // for the trace: show or erase
    int number;
    platform::RasterOp operation;
    EffectSettings settings;
};

/// Runs the effect to its end or to a stop, running handlers meanwhile, and traces it. A number
/// that is no effect does nothing.
void RunEffect(Application& app, EffectScene& scene, const EffectTask& task);

}  // namespace picture

#include "picture/effect_run.h"

#include "model/windows/slide_screen.h"
#include "picture/pacer.h"
#include "picture/screen.h"

namespace picture {

namespace {

void PlayPlan(Application& app, EffectScene& scene, const EffectTask& task,
              const EffectPlan& plan) {
    Pacer pacer(app.platform.loop, plan.Length(), [&scene] { return scene.Stopped(); });
    for (const EffectBand& band : plan.bands) {
        pacer.Pause(band.before);
        scene.Draw(band.area, task.operation);
        pacer.Pause(band.after);
        if (band.stopsHere && scene.Stopped()) {
            break;
        }
    }
    if (plan.wholeAtEnd) {
        scene.DrawWhole(task.operation);
    }
}

}  // namespace

bool EffectScene::Gone() const {
    return app_.state.FullScreenActive != 1 || app_.state.EffectDc != source_;
}

bool EffectScene::Stopped() const {
    return app_.state.EffectStop == 1 || Gone();
}

platform::Size EffectScene::PictureSize() const {
    const platform::Rect place = PicturePlace(app_);
    return {place.width, place.height};
}

platform::Rect EffectScene::CanvasArea() const {
    const platform::Rect place = PicturePlace(app_);
    const platform::Size& pixels = app_.windows.slidescreen.P2.canvas.Scaling().pixels;
    return {-place.x, -place.y, pixels.width, pixels.height};
}

void EffectScene::Draw(const platform::Rect& area, platform::RasterOp operation) {
    if (Gone()) {
        return;
    }
    const platform::Rect whole = PicturePlace(app_);
    const platform::Rect onCanvas{whole.x + area.x, whole.y + area.y, area.width, area.height};
    platform::Canvas& canvas = app_.windows.slidescreen.P2.canvas;
    if (operation == platform::RasterOp::Blackness) {
        canvas.FillPixels(onCanvas, 0);
    } else if (source_) {
        canvas.Lay(onCanvas, *source_, whole);
    }
}

void EffectScene::DrawWhole(platform::RasterOp operation) {
    const platform::Size size = PictureSize();
    Draw({0, 0, size.width, size.height}, operation);
}

void RunEffect(Application& app, EffectScene& scene, const EffectTask& task) {
    const bool erasing = task.operation == platform::RasterOp::Blackness;
    const auto random = [&app] { return app.platform.loop.Rnd(); };
    const EffectPlan plan = PlanEffect(task.number, task.settings, erasing, scene.PictureSize(),
                                       scene.CanvasArea(), random);
    if (plan.bands.empty()) {
        return;
    }
    const double start = app.platform.loop.Milliseconds();
    PlayPlan(app, scene, task, plan);
    app.platform.trace.Event("effect", {{"which", Text(task.which)},
                                        {"number", double(task.number)},
                                        {"ms", app.platform.loop.Milliseconds() - start}});
}

}  // namespace picture

#include "picture/effects.h"

#include "model/windows/picture_holder.h"
#include "picture/effect_choice.h"
#include "picture/effect_context.h"
#include "picture/effect_run.h"
#include "picture/overlay.h"
#include "picture/screen.h"

namespace picture {

namespace {

constexpr int kNoEraseEffect = 12;

EffectSettings ShowSettings(const model::ShowState& state) {
    return {.speed = state.ShowEffectSpeed,
            .fixedSpeed = state.EffectSpeedFixed == 1,
            .speedFactor = state.EffectSpeedFactor,
            .slits = state.ShowSlitCount,
            .blocks = state.ShowMosaicCount,
            .mosaicDelay = state.MosaicDelayUnit};
}

EffectSettings EraseSettings(const model::ShowState& state) {
    EffectSettings settings = ShowSettings(state);
    settings.speed = state.EraseEffectSpeed;
    settings.slits = state.EraseSlitCount;
    settings.blocks = state.EraseMosaicCount;
    return settings;
}

bool ErasesNothing(const model::ShowState& state) {
    return state.FullScreenActive != 1 || (state.SlideIndex == 1 && state.EraseSkipOnce == 1) ||
           state.EraseEffect == kNoEraseEffect || state.LastWasVideo == 1;
}

void ErasePicture(Application& app) {
    model::ShowState& state = app.state;
    ChooseEraseEffect(app);
    EffectScene scene(app);
    RunEffect(
        app, scene,
        {u"erase", state.CurrentEraseEffect, platform::RasterOp::Blackness, EraseSettings(state)});
    app.platform.loop.PumpEvents();
    if (!scene.Gone()) {
        ClearCanvas(app);
    }
    state.EffectStop = 0;
}

}  // namespace

void RunShowEffect(Application& app) {
    model::ShowState& state = app.state;
    PlacePicture(app);
    state.EffectStop = 0;
    ChooseShowEffect(app);
    EffectScene scene(app);
    RunEffect(
        app, scene,
        {u"show", state.CurrentShowEffect, platform::RasterOp::SourceCopy, ShowSettings(state)});
    app.platform.loop.PumpEvents();
    scene.DrawWhole(platform::RasterOp::SourceCopy);
    state.EffectStop = 0;
    if (!scene.Gone()) {
        DrawOverlapFrame(app);
    }
}

void ShowAtOnce(Application& app) {
    PlacePicture(app);
    EffectScene(app).DrawWhole(platform::RasterOp::SourceCopy);
    DrawOverlapFrame(app);
}

void RunEraseEffect(Application& app) {
    app.state.EffectStop = 0;
    if (!ErasesNothing(app.state)) {
        // Also before an empty canvas, where a show begins: slide 1 of its next pass erases.
        app.state.EraseSkipOnce = 0;
        if (app.state.PreviousPictureOnScreen == 1) {
            ErasePicture(app);
        }
    }
    ReleaseEffectContext(app);
}

void RestartEffects(model::ShowState& state) {
    state.NextShowEffect = 0;
    state.NextEraseEffect = 0;
    state.EraseSkipOnce = 1;
}

}  // namespace picture

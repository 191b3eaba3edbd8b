// Effects bring pictures onto the full-screen canvas and take them away.
#pragma once

#include "model/application.h"

namespace picture {

/// Places the picture of Form4 (PictureX, PictureY) and brings it onto P2 by the effect that
/// ShowEffect asks for (CurrentShowEffect), then draws the frame of an overlap. Runs handlers
/// meanwhile; EffectStop makes it show the whole picture at once, a closed window ends it. Needs
/// the effect context.
void RunShowEffect(Application& app);

/// The same without an effect, and without running handlers.
void ShowAtOnce(Application& app);

/// Takes the picture off P2 by the effect that EraseEffect asks for (CurrentEraseEffect), clears
/// P2 and gives up the effect context. Only the latter outside full screen, where no picture stands
/// on the screen (PreviousPictureOnScreen), before slide 1 of a new window (EraseSkipOnce, which
/// any later slide clears), for EraseEffect 12 and after a video. Runs handlers meanwhile;
/// EffectStop clears at once.
void RunEraseEffect(Application& app);

/// A new full-screen window: sequences of effects begin anew, and the first slide erases nothing.
void RestartEffects(model::ShowState& state);

}  // namespace picture

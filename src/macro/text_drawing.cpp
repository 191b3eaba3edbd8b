#include "macro/text_drawing.h"

#include "macro/printing.h"
#include "macro/text_words.h"
#include "model/controls.h"
#include "model/windows/main_window.h"

namespace macro {

namespace {

Flow WaitAfterLine(Run& run) {
    model::ShowState& state = run.state;
    if (run.DelayMs <= 0 || run.MacroLineUpper.empty()) {
        return Flow::GoOn;
    }
    model::Timer& timer = run.app.windows.form1.Timer3;  // its tick clears the flag
    state.MacroDelayWaiting = 1;
    timer.Enabled = false;  // it still runs where the show was stopped in such a wait
    timer.Interval = run.DelayMs;
    timer.Enabled = true;
    do {
        WaitOnePass(run.app);
    } while (state.MacroDelayWaiting == 1 && !Stopping(state));
    // Also before a jump: a tick left over would cut the next slide's first wait short.
    timer.Enabled = false;
    if (state.FullScreenClosed == 1) {
        state.MacroButtonsShown = 0;
        state.MacroJumpChosen = 0;
    }
    return state.MacroJumpChosen == 1 ? Flow::Jump : Flow::GoOn;
}

}  // namespace

Flow DrawTextLine(Run& run) {
    const Text line = Printable(run.MacroLine);
    DrawUnderlay(run, line);
    const platform::Canvas& seen = CanvasInForce(run.app);
    TraceText(run, {seen.penX, seen.penY}, run.MacroLine);
    for (platform::Canvas* canvas : Canvases(run.app)) {
        PrintAtPen(run, *canvas, line);
        MovePen(canvas->penY, run.app.platform.textRenderer.Measure(canvas->font, line).height);
        // Kept: the carriage return of a line that holds nothing else counts as text.
        if (!run.MacroLine.empty()) {
            MovePen(canvas->penY, run.state.LineSpaceExtra);
        }
    }
    return WaitAfterLine(run);
}

}  // namespace macro

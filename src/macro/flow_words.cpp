#include "macro/flow_words.h"

#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"
#include "text/numbers.h"

namespace macro {

Flow Comment(Run&, double) {
    return Flow::GoOn;
}

Flow StartLoop(Run& run, double count) {
    run.LoopCount = static_cast<int>(count);
    run.LoopPosition = run.position;
    run.loopLine = run.lineNumber;
    return Flow::GoOn;
}

Flow EndLoop(Run& run, double) {
    if (run.LoopPosition == 0) {
        return Flow::GoOn;
    }
    --run.LoopCount;
    if (run.LoopCount > 0) {
        // Kept: the line feed is read again, so every turn begins with an empty line.
        run.position = run.LoopPosition - 1;
        run.lineNumber = run.loopLine - 1;
    }
    return Flow::GoOn;
}

Flow SleepFor(Run& run, double seconds) {
    WaitSeconds(run, seconds);
    return run.state.MacroJumpChosen == 1 ? Flow::Jump : Flow::GoOn;
}

Flow EndAfter(Run& run, double seconds) {
    WaitSeconds(run, seconds);
    // The end of the time may run off the list's end, a choice during it may not.
    run.clampsJump = run.state.MacroJumpChosen == 1;
    return Flow::Jump;
}

Flow Skip(Run& run, double slides) {
    if (slides == 0) {
        return Flow::GoOn;
    }
    const auto index = text::ToInt16(run.state.SlideIndex + slides);
    if (!index) {
        return Flow::Failed;
    }
    run.state.SlideIndex = *index;
    return Flow::Jump;
}

Flow Lock(Run& run, double mode) {
    if (mode == 1 || mode == 2) {
        run.state.MacroWaitClick = mode == 1 ? 1 : 0;
    }
    return Flow::GoOn;
}

Flow End(Run& run, double mode) {
    if (mode == 1) {
        run.state.ShowAbort = 1;
        run.state.MacroWaitClick = 0;
        return Flow::Jump;
    }
    if (mode == 2) {
        run.app.windows.form1.Unload();
        run.app.windows.slidescreen.Unload();
        throw platform::ProgramEnd{};
    }
    return Flow::GoOn;
}

}  // namespace macro

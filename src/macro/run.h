// One run of a slide's macro file: what the reader and the words share while it lasts.
#pragma once

#include "model/application.h"
#include "model/picture_controls.h"

namespace macro {

/// How reading goes on after a word.
enum class Flow {
    GoOn,
    Jump,    // leave by way of the jump exit: another slide was chosen
    Stop,    // leave at once: the show stops
    Failed,  // the word could not be carried out
};

/// Names as the language's description has them. Positions count from 1.
struct Run {
    explicit Run(Application& application) : app(application), state(application.state) {}

    Application& app;
    model::ShowState& state;

    Text source;          // the whole file
    size_t position = 0;  // characters read of it
    int lineNumber = 0;   // of the line in work, from 1; a loop's lines keep theirs

    Text MacroLine;       // as written, with its carriage return
    Text MacroLineUpper;  // the same in upper case
    size_t ArgStart = 1;  // after the first '='; 1 without one

    int TextMode = 0;          // 1 after the line that begins the text
    int CurrentXValue = 0;     // pixels: left margin, place of buttons and pieces
    int KageKind = 0;          // 0 none, 1 shadow, 2 black outline, 3 white outline
    int ZureX = 5, ZureY = 3;  // pixels: shadow's offset
    int DelayMs = 0;           // after each line of text
    int TabWidth = 0;          // columns, 0 unset
    int LoopCount = 0;
    size_t LoopPosition = 0;  // characters read up to and with the line of LOOP
    int loopLine = 0;         // that line's number
    platform::Color TextForeColor = 0;

    bool clampsJump = true;  // false: the jump exit may run off the list's end
};

/// Both line texts become `text`.
inline void SetLine(Run& run, TextView text) {
    run.MacroLine = text;
    run.MacroLineUpper = text;
}

inline void ClearLine(Run& run) {
    SetLine(run, {});
}

/// True when the show is being stopped or the full screen was closed.
inline bool Stopping(const model::ShowState& state) {
    return state.StopRequest == 1 || state.FullScreenClosed == 1 || model::StepOutlived(state);
}

inline bool InFullScreen(const model::ShowState& state) {
    return state.FullScreenActive == 1;
}

/// The left edge of both canvases' pens goes to CurrentXValue.
void MovePensToMargin(Run& run);

/// One pass of every wait: pump, then sleep 20 ms.
void WaitOnePass(Application& app);

/// Waits until `seconds` have passed, also over midnight; ends early at a chosen jump or a stop.
void WaitSeconds(Run& run, double seconds);

/// The pointer is seen again, and clicks on the screen close the show again.
void ShowPointer(Application& app);

/// Copies one layer of the full screen onto another of the same size.
void CopyLayer(model::PictureBox& target, const model::PictureBox& source);

/// Copies the area (units of the full-screen canvas) from the background P3 back to P2.
void RestoreBackground(Application& app, const platform::Rect& area);

/// In full-screen mode the canvas takes the keyboard.
void FocusScreen(Application& app);

}  // namespace macro

#include "macro/reader.h"

#include "macro/keywords.h"
#include "macro/text_drawing.h"
#include "model/windows/slide_screen.h"

namespace macro {

namespace {

constexpr int kTabWidthOfOutlines = 6;

/// Blanks up to the next tab stop. `columns` is what the line takes so far.
size_t BlanksOfTab(Run& run, int columns) {
    if (run.TabWidth == 0) {
        run.TabWidth = kTabWidthOfOutlines;
    }
    return static_cast<size_t>(run.TabWidth - columns % run.TabWidth);
}

/// Reads up to and with a line feed, or to the end. The line feed is left out, unless it is the
/// last character of the file: kept, as is a tab that ends the file.
void ReadLine(Run& run) {
    ClearLine(run);
    int columns = 0;
    while (run.position < run.source.size()) {
        const char16_t c = run.source[run.position++];
        const bool last = run.position == run.source.size();
        if (c == u'\n' && !last) {
            return;
        }
        if (c == u'\t' && !last && (run.TabWidth > 0 || run.KageKind > 1)) {
            const size_t blanks = BlanksOfTab(run, columns);
            run.MacroLine.append(blanks, u' ');
            columns += static_cast<int>(blanks);
        } else {
            run.MacroLine += c;
            columns += ColumnsOf(c);
        }
    }
}

void BeginText(Run& run) {
    run.app.platform.trace.Event(
        "macro", {{"line", double(run.lineNumber)}, {"keyword", Text(kTextSection)}});
    run.TextMode = 1;
    if (InFullScreen(run.state)) {
        CopyLayer(run.app.windows.slidescreen.P3, run.app.windows.slidescreen.P2);
    }
}

Flow RunLine(Run& run) {
    // Words empty the line, so this is asked before them.
    const bool beginsText = run.MacroLine.starts_with(kTextSection);
    if (const Flow flow = RunKeywords(run); flow != Flow::GoOn) {
        return flow;
    }
    if (run.TextMode == 1) {
        if (const Flow flow = DrawTextLine(run); flow != Flow::GoOn) {
            return flow;
        }
    }
    if (beginsText) {
        BeginText(run);
    }
    return Flow::GoOn;
}

/// Menus and clickable pieces hold the slide until one is chosen.
Flow WaitForChoice(Run& run) {
    MovePensToMargin(run);
    model::ShowState& state = run.state;
    while (state.MacroButtonsShown == 1 && !Stopping(state)) {
        WaitOnePass(run.app);
    }
    return state.MacroJumpChosen == 1 ? Flow::Jump : Flow::GoOn;
}

}  // namespace

int ColumnsOf(char16_t character) {
    const bool halfWidthKana = character >= u'｡' && character <= u'ﾟ';
    return character < 0x80 || halfWidthKana ? 1 : 2;
}

Flow ReadLines(Run& run) {
    model::ShowState& state = run.state;
    while (run.position < run.source.size()) {
        if (Stopping(state)) {
            return Flow::Stop;
        }
        ++run.lineNumber;
        ReadLine(run);
        run.app.platform.loop.PumpEvents();
        if (Stopping(state)) {
            return Flow::Stop;
        }
        run.MacroLineUpper = text::Upper(run.MacroLine);
        run.ArgStart = text::InStr(run.MacroLine, u"=") + 1;
        if (state.MacroJumpChosen == 1) {
            return Flow::Jump;
        }
        const Flow flow = RunLine(run);
        if (flow == Flow::Failed && run.TextMode == 1) {
            continue;  // the rest of the line is dropped
        }
        if (flow != Flow::GoOn) {
            return flow == Flow::Jump ? Flow::Jump : Flow::Stop;
        }
    }
    return WaitForChoice(run);
}

}  // namespace macro

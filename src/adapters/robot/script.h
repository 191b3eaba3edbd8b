// A robot script, read whole before anything runs.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "text/text.h"

namespace robot {

/// A script that cannot be played. what() is "FILE:LINE: reason".
class ScriptError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

enum class ActionKind {
    Click,
    DoubleClick,
    RightClick,
    Key,
    Menu,
    Select,
    Set,
    Drop,
    Move,
    Close,
    Answer,
    Input,
    Choose,
    Print,
    Expect,
    ExpectTrace,
    ExpectNo,
    ExpectSlides,
    ExpectSounds,
    ExpectExit,
    Shot,
    Golden,
    Quit
};

/// When an action is due, counted in virtual milliseconds.
struct Due {
    enum Kind {
        Next,      // at the moment the action before began
        After,     // so much later than that
        Absolute,  // after program start, but never before the action before it
        During     // at the next pump of what the action before it started
    } kind = Next;
    double milliseconds = 0;
};

/// What a field of a trace's event must be.
struct FieldExpectation {
    std::string field;
    Text value;         // as the script has it; of a part without its quotes
    bool part = false;  // the field is a text that holds it
};

/// One line. Which fields mean something depends on the kind.
struct Action {
    int line = 0;  // from 1
    Due due;
    ActionKind kind = ActionKind::Quit;
    std::string window;   // of Click .. Close, Menu; of Shot and Golden where one is named
    std::string control;  // empty: the window itself
    std::string name;     // of Print and Expect; Menu: the entry, with "(index)" where it has one;
                          // ExpectTrace, ExpectNo: the event
    std::vector<int> numbers;  // point, key code, rows, cells, exit status
    std::optional<Text> text;  // Set, Input (none: cancel), Answer, Expect, Shot, Golden
    std::vector<Text>
        paths;  // Drop; Choose (none: cancel); ExpectSlides: files; ExpectSounds: the commands
    std::vector<double> moments;  // ExpectSlides, ExpectSounds: one for each of `paths`
    std::vector<FieldExpectation> fields;
};

/// True for the kinds that look at the trace or at the end of the run.
bool LooksAtRun(ActionKind kind);

/// The word that names it in a script.
std::string_view ActionWord(ActionKind kind);

/// Reads a whole script in UTF-8. Throws ScriptError at the first line that is none.
std::vector<Action> ParseScript(std::string_view content, const std::string& fileName);

}  // namespace robot

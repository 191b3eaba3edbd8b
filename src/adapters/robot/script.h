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
    Shot,
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

/// One line. Which fields mean something depends on the kind.
struct Action {
    int line = 0;  // from 1
    Due due;
    ActionKind kind = ActionKind::Quit;
    std::string window;   // of Click .. Close but Menu; of Shot where one is named
    std::string control;  // empty: the window itself
    std::string name;     // of Print and Expect; Menu: the entry, with "(index)" where it has one
    std::vector<int> numbers;  // point, key code, rows, cells
    std::optional<Text> text;  // Set, Input, Choose (none: cancel), Answer, Expect, Shot
    std::vector<Text> paths;   // Drop
};

/// The word that names it in a script.
std::string_view ActionWord(ActionKind kind);

/// Reads a whole script in UTF-8. Throws ScriptError at the first line that is none.
std::vector<Action> ParseScript(std::string_view content, const std::string& fileName);

}  // namespace robot

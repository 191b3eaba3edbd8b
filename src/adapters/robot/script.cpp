#include "adapters/robot/script.h"

#include <charconv>
#include <iterator>

#include "adapters/robot/values.h"

namespace robot {

namespace {

/// Why a line is no action; the caller adds where it stands.
struct BadLine {
    std::string reason;
};

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

std::string_view Trimmed(std::string_view line) {
    while (!line.empty() && IsBlank(line.front())) {
        line.remove_prefix(1);
    }
    while (!line.empty() && IsBlank(line.back())) {
        line.remove_suffix(1);
    }
    return line;
}

/// Length of the quoted text that begins the line, with its quotes; the whole line where the
/// closing one is missing.
size_t QuotedLength(std::string_view line) {
    for (size_t i = 1; i < line.size(); ++i) {
        if (line[i] == '\\') {
            ++i;
        } else if (line[i] == '"') {
            return i + 1;
        }
    }
    return line.size();
}

/// Without what follows a '#' that begins a word outside quotes. A line of expectations also
/// has quotes after the sign between a field and its value.
std::string_view WithoutComment(std::string_view line) {
    const bool hasFields = line.find("expect-") != std::string_view::npos;
    size_t i = 0;
    while (i < line.size()) {
        const char before = i == 0 ? ' ' : line[i - 1];
        const bool beginsWord = IsBlank(before);
        const bool beginsValue = beginsWord || (hasFields && (before == '=' || before == '~'));
        if (beginsWord && line[i] == '#') {
            return line.substr(0, i);
        }
        i += beginsValue && line[i] == '"' ? QuotedLength(line.substr(i)) : 1;
    }
    return line;
}

Text Unquoted(std::string_view quoted) {
    const std::optional<ScriptValue> value = ParseJson(quoted);
    const Text* text = value ? std::get_if<Text>(&*value) : nullptr;
    if (!text) {
        throw BadLine{"this is no quoted text: " + std::string(quoted)};
    }
    return *text;
}

int ToWholeNumber(std::string_view word) {
    int number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size()) {
        throw BadLine{"this is no whole number: " + std::string(word)};
    }
    return number;
}

double ToTime(std::string_view word) {
    double time = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), time);
    if (error != std::errc() || end != word.data() + word.size()) {
        throw BadLine{"this is no time in milliseconds: " + std::string(word)};
    }
    return time;
}

/// What follows the keyword, read from left to right.
class Arguments {
public:
    explicit Arguments(std::string_view rest) : rest_(Trimmed(rest)) {}

    bool AtEnd() const { return rest_.empty(); }
    bool Quoted() const { return rest_.starts_with('"'); }

    /// A word up to the next blank.
    std::string Plain(const char* what) {
        size_t length = 0;
        while (length < rest_.size() && !IsBlank(rest_[length])) {
            ++length;
        }
        return std::string(Take(length, what));
    }
    /// A word, or a quoted text that may hold blanks.
    Text Word(const char* what) {
        if (rest_.empty() || rest_.front() != '"') {
            return text::FromUtf8(Plain(what));
        }
        return Unquoted(Take(QuotedLength(rest_), what));
    }
    double Time() { return ToTime(Plain("time")); }
    /// FIELD=VALUE or FIELD~PART.
    FieldExpectation Field() {
        const size_t length = rest_.find_first_of("=~ \t");
        if (length == 0 || length == std::string_view::npos || IsBlank(rest_[length])) {
            throw BadLine{"this is no FIELD=VALUE: " + std::string(rest_)};
        }
        FieldExpectation expectation;
        expectation.field = rest_.substr(0, length);
        expectation.part = rest_[length] == '~';
        rest_.remove_prefix(length + 1);
        if (rest_.empty() || rest_.front() != '"') {
            expectation.value = text::FromUtf8(Plain("value"));
            return expectation;
        }
        const std::string_view quoted = Take(QuotedLength(rest_), "value");
        const Text inside = Unquoted(quoted);
        expectation.value = expectation.part ? inside : text::FromUtf8(quoted);
        return expectation;
    }
    int Number(const char* what) { return ToWholeNumber(Plain(what)); }
    /// Everything that is left as it stands.
    std::string Raw(const char* what) { return std::string(Take(rest_.size(), what)); }
    /// Everything that is left, without quotes where it stands in them. Empty at the end.
    Text Rest() {
        if (rest_.empty()) {
            return {};
        }
        const bool quoted = rest_.front() == '"' && QuotedLength(rest_) == rest_.size();
        const std::string all = Raw("text");
        return quoted ? Unquoted(all) : text::FromUtf8(all);
    }

private:
    std::string_view Take(size_t length, const char* what) {
        if (length == 0) {
            throw BadLine{std::string("the ") + what + " is missing"};
        }
        const std::string_view taken = rest_.substr(0, length);
        rest_ = Trimmed(rest_.substr(length));
        return taken;
    }

    std::string_view rest_;
};

void ReadTarget(Arguments& from, Action& action) {
    const std::string target = from.Plain("window");
    const size_t dot = target.find('.');
    action.window = target.substr(0, dot);
    action.control = dot == std::string::npos ? "" : target.substr(dot + 1);
    if (action.window.empty() || (dot != std::string::npos && action.control.empty())) {
        throw BadLine{"this is no window or control: " + target};
    }
}

void ReadControl(Arguments& from, Action& action) {
    ReadTarget(from, action);
    if (action.control.empty()) {
        throw BadLine{"the control is missing after " + action.window};
    }
}

void ReadMouse(Arguments& from, Action& action) {
    ReadTarget(from, action);
    if (!from.AtEnd()) {
        action.numbers = {from.Number("X"), 0};
        action.numbers[1] = from.Number("Y");
    }
}

void ReadKey(Arguments& from, Action& action) {
    ReadTarget(from, action);
    action.numbers = {from.Number("key's number")};
}

/// Entries are those of the main window where no window stands before them.
void ReadMenu(Arguments& from, Action& action) {
    const std::string entry = from.Plain("entry");
    const size_t dot = entry.find('.');
    action.window = dot == std::string::npos ? "Form1" : entry.substr(0, dot);
    action.name = dot == std::string::npos ? entry : entry.substr(dot + 1);
    if (!from.AtEnd()) {
        action.name += "(" + std::to_string(from.Number("index")) + ")";
    }
}

void ReadSelect(Arguments& from, Action& action) {
    ReadControl(from, action);
    while (!from.AtEnd()) {
        action.numbers.push_back(from.Number("row"));
    }
}

void ReadMove(Arguments& from, Action& action) {
    ReadControl(from, action);
    action.numbers = {from.Number("row")};
}

void ReadSet(Arguments& from, Action& action) {
    ReadControl(from, action);
    action.text = from.Rest();
}

void ReadDrop(Arguments& from, Action& action) {
    ReadTarget(from, action);
    do {
        action.paths.push_back(from.Word("path"));
    } while (!from.AtEnd());
}

void ReadClose(Arguments& from, Action& action) {
    ReadTarget(from, action);
    if (!action.control.empty()) {
        throw BadLine{"a window is closed, not a control"};
    }
}

void ReadAnswer(Arguments& from, Action& action) {
    const std::string word = from.Plain("answer");
    if (word != "yes" && word != "no" && word != "ok" && word != "cancel") {
        throw BadLine{"this is no answer: " + word};
    }
    action.text = text::FromUtf8(word);
}

void ReadOptionalText(Arguments& from, Action& action) {
    if (!from.AtEnd()) {
        action.text = from.Rest();
    }
}

/// A path as it stands, or several in quotes.
void ReadChoose(Arguments& from, Action& action) {
    Arguments words = from;
    if (!from.AtEnd() && words.Quoted()) {
        action.paths.push_back(words.Word("path"));
        while (!words.AtEnd()) {
            action.paths.push_back(words.Word("path"));
        }
        from = words;
    } else if (!from.AtEnd()) {
        action.paths.push_back(from.Rest());
    }
}

void ReadPrint(Arguments& from, Action& action) {
    action.name = from.Plain("name");
}

void ReadExpect(Arguments& from, Action& action) {
    action.name = from.Plain("name");
    action.text = text::FromUtf8(from.Raw("value (\"\" for the empty text)"));
}

void ReadShot(Arguments& from, Action& action) {
    action.text = from.Word("file");
    if (!from.AtEnd()) {
        ReadClose(from, action);
    }
}

void ReadEvent(Arguments& from, Action& action) {
    action.name = from.Plain("event");
    while (!from.AtEnd()) {
        action.fields.push_back(from.Field());
    }
}

void ReadSlides(Arguments& from, Action& action) {
    while (!from.AtEnd()) {
        action.moments.push_back(from.Time());
        action.paths.push_back(from.Word("file"));
    }
}

void ReadSounds(Arguments& from, Action& action) {
    if (!from.AtEnd()) {
        action.moments = {from.Time()};
        action.paths = {text::FromUtf8(from.Raw("command"))};
    }
}

void ReadExit(Arguments& from, Action& action) {
    action.numbers = {from.Number("status")};
}

void ReadNothing(Arguments&, Action&) {}

struct Keyword {
    std::string_view name;
    ActionKind kind;
    void (*read)(Arguments&, Action&);
    std::string_view usage;
};

constexpr Keyword kKeywords[] = {
    {"click", ActionKind::Click, ReadMouse, "click W[.C] [X Y]"},
    {"dblclick", ActionKind::DoubleClick, ReadMouse, "dblclick W[.C] [X Y]"},
    {"rclick", ActionKind::RightClick, ReadMouse, "rclick W[.C] [X Y]"},
    {"key", ActionKind::Key, ReadKey, "key W[.C] CODE"},
    {"menu", ActionKind::Menu, ReadMenu, "menu [W.]ENTRY [INDEX]"},
    {"select", ActionKind::Select, ReadSelect,
     "select W.C [ROW...], select W.G ROW COL [ROW2 COL2]"},
    {"set", ActionKind::Set, ReadSet, "set W.C VALUE"},
    {"drop", ActionKind::Drop, ReadDrop, "drop W[.C] PATH..."},
    {"move", ActionKind::Move, ReadMove, "move W.L TO"},
    {"close", ActionKind::Close, ReadClose, "close W"},
    {"answer", ActionKind::Answer, ReadAnswer, "answer yes|no|ok|cancel"},
    {"input", ActionKind::Input, ReadOptionalText, "input [TEXT]"},
    {"choose", ActionKind::Choose, ReadChoose, "choose [PATH]..."},
    {"print", ActionKind::Print, ReadPrint, "print NAME"},
    {"expect", ActionKind::Expect, ReadExpect, "expect NAME VALUE"},
    {"expect-trace", ActionKind::ExpectTrace, ReadEvent,
     "expect-trace EVENT [FIELD=VALUE|FIELD~PART]..."},
    {"expect-no", ActionKind::ExpectNo, ReadEvent, "expect-no EVENT [FIELD=VALUE|FIELD~PART]..."},
    {"expect-slides", ActionKind::ExpectSlides, ReadSlides, "expect-slides [TIME FILE]..."},
    {"expect-sounds", ActionKind::ExpectSounds, ReadSounds,
     "expect-sounds [TIME COMMAND | COMMAND...]"},
    {"expect-exit", ActionKind::ExpectExit, ReadExit, "expect-exit STATUS"},
    {"shot", ActionKind::Shot, ReadShot, "shot FILE [W]"},
    {"golden", ActionKind::Golden, ReadShot, "golden FILE [W]"},
    {"quit", ActionKind::Quit, ReadNothing, "quit"},
};

Due ReadDue(std::string_view word) {
    const int milliseconds = ToWholeNumber(word.substr(1));
    if (milliseconds < 0) {
        throw BadLine{"a time cannot be below 0"};
    }
    return {word.front() == '@' ? Due::Absolute : Due::After, static_cast<double>(milliseconds)};
}

Action ReadAction(std::string_view line) {
    Action action;
    Arguments words(line);
    std::string word = words.Plain("action");
    if (word.front() == '@' || word.front() == '+') {
        action.due = ReadDue(word);
        word = words.Plain("action");
    } else if (word == "during") {
        action.due = {Due::During, 0};
        word = words.Plain("action");
    }
    for (const Keyword& keyword : kKeywords) {
        if (keyword.name != word) {
            continue;
        }
        action.kind = keyword.kind;
        try {
            keyword.read(words, action);
            if (!words.AtEnd()) {
                throw BadLine{"this is too much: " + words.Raw("rest")};
            }
        } catch (const BadLine& bad) {
            throw BadLine{bad.reason + "; usage: " + std::string(keyword.usage)};
        }
        return action;
    }
    throw BadLine{"unknown action: " + word};
}

}  // namespace

std::string_view ActionWord(ActionKind kind) {
    for (const Keyword& keyword : kKeywords) {
        if (keyword.kind == kind) {
            return keyword.name;
        }
    }
    return {};
}

bool LooksAtRun(ActionKind kind) {
    return kind == ActionKind::ExpectTrace || kind == ActionKind::ExpectNo ||
           kind == ActionKind::ExpectSlides || kind == ActionKind::ExpectSounds ||
           kind == ActionKind::ExpectExit;
}

std::vector<Action> ParseScript(std::string_view content, const std::string& fileName) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    std::vector<Action> script;
    if (content.starts_with(kByteOrderMark)) {
        content.remove_prefix(kByteOrderMark.size());
    }
    for (int number = 1; !content.empty(); ++number) {
        const size_t end = content.find('\n');
        const std::string_view whole = content.substr(0, end);
        content.remove_prefix(end == std::string_view::npos ? content.size() : end + 1);
        try {
            if (!text::IsUtf8(whole)) {
                throw BadLine{"this is not UTF-8"};
            }
            const std::string_view line = Trimmed(WithoutComment(whole));
            if (!line.empty()) {
                script.push_back(ReadAction(line));
                script.back().line = number;
            }
        } catch (const BadLine& bad) {
            throw ScriptError(fileName + ":" + std::to_string(number) + ": " + bad.reason);
        }
    }
    return script;
}

}  // namespace robot

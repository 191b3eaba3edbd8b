#include "adapters/robot/values.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <utility>

#include "adapters/posix/json.h"
#include "model/grid.h"
#include "model/list_controls.h"

namespace robot {

namespace {

struct NamedArray {
    std::string_view name;
    model::TextArray model::ShowState::*array;
};

constexpr NamedArray kArrays[] = {
    {"SlideList", &model::ShowState::SlideList},
    {"ScheduleFrom", &model::ShowState::ScheduleFrom},
    {"ScheduleTo", &model::ShowState::ScheduleTo},
    {"CdProgram", &model::ShowState::CdProgram},
    {"SoundList", &model::ShowState::SoundList},
    {"LinkList", &model::ShowState::LinkList},
};

/// Fields that the rules know by two names.
constexpr std::pair<std::string_view, std::string_view> kOtherNames[] = {
    {"ListWindowPainted", "SlideListDirty"},     {"ListCheck2Flag", "ListDblClickRecord"},
    {"ListCheck3Flag", "ListDblClickWallpaper"}, {"ListCheck4Flag", "ListDblClickText"},
    {"ListCheck5Flag", "ListDblClickStart"},     {"SoundListIndex", "SoundListPos"},
};

ScriptValue FromModel(const model::Value& value) {
    return std::visit([](const auto& held) { return ScriptValue(held); }, value);
}

std::vector<Text> RowsOf(const model::ListBox& list) {
    return {list.Rows().begin(), list.Rows().end()};
}

/// An array, or with "(index)" one element of it.
std::optional<ScriptValue> ReadArray(const model::TextArray& array, std::string_view index,
                                     std::string& error) {
    if (index.empty()) {
        std::vector<Text> all;
        for (int i = 1; i <= array.Used(); ++i) {
            all.push_back(array(i));
        }
        return all;
    }
    int number = -1;
    const char* last = index.data() + index.size() - 1;
    const auto [end, failure] = std::from_chars(index.data() + 1, last, number);
    if (index.back() != ')' || failure != std::errc() || end != last || number < 0 ||
        number > array.Last()) {
        error = "no such index: " + std::string(index);
        return std::nullopt;
    }
    return array(number);
}

std::optional<ScriptValue> ReadState(const model::ShowState& state, std::string_view name,
                                     std::string& error) {
    for (const auto& [other, field] : kOtherNames) {
        name = name == other ? field : name;
    }
    const size_t bracket = name.find('(');
    for (const NamedArray& one : kArrays) {
        if (one.name == name.substr(0, bracket)) {
            const std::string_view index =
                bracket == std::string_view::npos ? std::string_view() : name.substr(bracket);
            return ReadArray(state.*one.array, index, error);
        }
    }
    if (name == "ShowDateTime") {
        return platform::DateTimeText(state.ShowDateTime);
    }
    if (const model::FieldPointer* field = model::FindField(name)) {
        const auto value = model::ReadField(state, *field);
        return std::visit([](const auto& held) { return ScriptValue(held); }, value);
    }
    error = "no such field: " + std::string(name);
    return std::nullopt;
}

std::optional<ScriptValue> ReadProperty(const model::Control& control, std::string_view name) {
    if (const model::PropertyBase* property = control.FindProperty(name)) {
        return FromModel(property->Read());
    }
    if (const auto* list = dynamic_cast<const model::ListBox*>(&control)) {
        if (name == "ListCount") {
            return static_cast<double>(list->ListCount());
        }
        if (name == "SelCount") {
            return static_cast<double>(list->SelCount());
        }
        if (name == "Selected") {
            const std::vector<int> rows = list->SelectedRows();
            return std::vector<double>(rows.begin(), rows.end());
        }
    }
    return std::nullopt;
}

/// `rest` is what follows the window's name: a list, a control's property, or a property of
/// the window itself.
std::optional<ScriptValue> ReadFromWindow(const model::Window& window, std::string_view rest,
                                          std::string& error) {
    if (const model::Control* control = window.FindControl(rest)) {
        if (const auto* list = dynamic_cast<const model::ListBox*>(control)) {
            return RowsOf(*list);
        }
        if (const auto* grid = dynamic_cast<const model::Grid*>(control)) {
            return Cells(grid->Cells().begin(), grid->Cells().end());
        }
        error = std::string(rest) + " is no list: name one of its properties";
        return std::nullopt;
    }
    const size_t dot = rest.rfind('.');
    const model::Control* control = &window;
    if (dot != std::string_view::npos) {
        control = window.FindControl(rest.substr(0, dot));
    }
    if (!control) {
        error = window.Name() + " has no control " + std::string(rest.substr(0, dot));
        return std::nullopt;
    }
    const std::string_view property = dot == std::string_view::npos ? rest : rest.substr(dot + 1);
    std::optional<ScriptValue> value = ReadProperty(*control, property);
    if (!value) {
        error = control->Name() + " has no control or property " + std::string(property);
    }
    return value;
}

/// JSON from left to right, as much of it as a script needs.
class JsonReader {
public:
    explicit JsonReader(std::string_view json) : rest_(json) {}

    std::optional<ScriptValue> Whole() {
        SkipBlanks();
        std::optional<ScriptValue> value =
            !rest_.empty() && rest_.front() == '[' ? Array() : Scalar();
        SkipBlanks();
        return rest_.empty() ? value : std::nullopt;
    }

private:
    void SkipBlanks() {
        while (!rest_.empty() && (rest_.front() == ' ' || rest_.front() == '\t')) {
            rest_.remove_prefix(1);
        }
    }
    bool Take(std::string_view word) {
        const bool found = rest_.starts_with(word);
        rest_.remove_prefix(found ? word.size() : 0);
        return found;
    }

    std::optional<ScriptValue> Scalar() {
        if (Take("true")) {
            return true;
        }
        if (Take("false")) {
            return false;
        }
        if (!rest_.empty() && rest_.front() == '"') {
            std::optional<Text> text = String();
            return text ? std::optional<ScriptValue>(std::move(*text)) : std::nullopt;
        }
        return Number();
    }

    std::optional<ScriptValue> Array() {
        std::vector<ScriptValue> all;
        Take("[");
        SkipBlanks();
        if (Take("]")) {
            return std::vector<Text>();
        }
        while (true) {
            SkipBlanks();
            std::optional<ScriptValue> one =
                !rest_.empty() && rest_.front() == '[' ? Array() : Scalar();
            SkipBlanks();
            if (!one) {
                return std::nullopt;
            }
            all.push_back(std::move(*one));
            if (Take("]")) {
                return OfOneKind(all);
            }
            if (!Take(",")) {
                return std::nullopt;
            }
        }
    }

    /// The array of the elements, all of which must be of the first one's kind.
    static std::optional<ScriptValue> OfOneKind(const std::vector<ScriptValue>& all) {
        switch (all.front().index()) {
            case 0:
                return As<double>(all);
            case 2:
                return As<Text>(all);
            case 3:
                return As<std::vector<Text>>(all);
            default:
                return std::nullopt;
        }
    }
    template <class Element>
    static std::optional<ScriptValue> As(const std::vector<ScriptValue>& all) {
        std::vector<Element> elements;
        for (const ScriptValue& one : all) {
            const Element* element = std::get_if<Element>(&one);
            if (!element) {
                return std::nullopt;
            }
            elements.push_back(*element);
        }
        return elements;
    }

    /// A number as JSON writes it: no plus sign, no leading zero, digits around the point.
    std::optional<ScriptValue> Number() {
        const auto isDigit = [this](size_t at) {
            return at < rest_.size() && std::isdigit(static_cast<unsigned char>(rest_[at]));
        };
        const size_t first = rest_.starts_with('-') ? 1 : 0;
        if (!isDigit(first) || (rest_[first] == '0' && isDigit(first + 1))) {
            return std::nullopt;
        }
        double number = 0;
        const auto [end, error] =
            std::from_chars(rest_.data(), rest_.data() + rest_.size(), number);
        const size_t length = static_cast<size_t>(end - rest_.data());
        if (error != std::errc() || rest_[length - 1] == '.') {
            return std::nullopt;
        }
        rest_.remove_prefix(length);
        return number;
    }

    std::optional<Text> String() {
        if (!Take("\"")) {
            return std::nullopt;
        }
        Text result;
        std::string plain;  // UTF-8 between escapes
        while (!rest_.empty()) {
            const char c = rest_.front();
            rest_.remove_prefix(1);
            if (c == '"') {
                return result + text::FromUtf8(plain);
            }
            if (c != '\\') {
                plain += c;
                continue;
            }
            result += text::FromUtf8(plain);
            plain.clear();
            const std::optional<char16_t> escaped = Escaped();
            if (!escaped) {
                return std::nullopt;
            }
            result += *escaped;
        }
        return std::nullopt;
    }

    /// What follows a backslash.
    std::optional<char16_t> Escaped() {
        static constexpr std::string_view kNames = "\"\\/bfnrt";
        static constexpr char16_t kMeant[] = u"\"\\/\b\f\n\r\t";
        if (Take("u")) {
            constexpr size_t kDigits = 4;
            unsigned unit = 0;
            const char* begin = rest_.data();
            if (rest_.size() < kDigits ||
                std::from_chars(begin, begin + kDigits, unit, 16).ptr != begin + kDigits) {
                return std::nullopt;
            }
            rest_.remove_prefix(kDigits);
            return static_cast<char16_t>(unit);
        }
        const size_t which = rest_.empty() ? std::string_view::npos : kNames.find(rest_.front());
        if (which == std::string_view::npos) {
            return std::nullopt;
        }
        rest_.remove_prefix(1);
        return kMeant[which];
    }

    std::string_view rest_;
};

struct JsonWriter {
    std::string operator()(double number) const { return posix_adapter::JsonNumber(number); }
    std::string operator()(bool flag) const { return flag ? "true" : "false"; }
    std::string operator()(const Text& text) const { return posix_adapter::JsonText(text); }
    template <class Element>
    std::string operator()(const std::vector<Element>& elements) const {
        return posix_adapter::JsonArray(elements, *this);
    }
};

}  // namespace

std::optional<ScriptValue> ReadByName(model::Application& application, std::string_view name,
                                      std::string& error) {
    const size_t dot = name.find('.');
    if (dot == std::string_view::npos) {
        return ReadState(application.state, name, error);
    }
    const model::Window* window = application.windows.Find(name.substr(0, dot));
    if (!window) {
        error = "no such window: " + std::string(name.substr(0, dot));
        return std::nullopt;
    }
    return ReadFromWindow(*window, name.substr(dot + 1), error);
}

decltype(platform::TraceField::value) ToTraceValue(const ScriptValue& value) {
    return std::visit([](const auto& held) { return decltype(platform::TraceField::value)(held); },
                      value);
}

std::string ToJson(const ScriptValue& value) {
    return std::visit(JsonWriter{}, value);
}

std::optional<ScriptValue> ParseJson(std::string_view json) {
    return JsonReader(json).Whole();
}

bool Matches(const ScriptValue& value, TextView expected) {
    const std::optional<ScriptValue> wanted = ParseJson(text::ToUtf8(expected));
    const auto* none = wanted ? std::get_if<std::vector<Text>>(&*wanted) : nullptr;
    const auto* numbers = std::get_if<std::vector<double>>(&value);
    if (wanted == value || (none && none->empty() && numbers && numbers->empty())) {
        return true;
    }
    const Text* text = std::get_if<Text>(&value);
    return text && *text == expected;
}

}  // namespace robot

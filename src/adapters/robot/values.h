// What a script can ask for by name, and how it is written and compared.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "model/application.h"

namespace robot {

/// A grid's cells, row by row.
using Cells = std::vector<std::vector<Text>>;
using ScriptValue = std::variant<double, bool, Text, std::vector<Text>, std::vector<double>, Cells>;

/// Value of a show-state field (`SlideIndex`), an array or an element of it (`SlideList`, from
/// index 1; `SlideList(3)`), a control's or window's property (`Form1.Command1.Enabled`,
/// `Form1.Caption`), a list's rows (`Form3.List1`) or a grid's cells, the header first. Lists also
/// have ListCount, SelCount and Selected, the numbers of the selected rows.
/// Nullopt with `error` set when there is nothing of that name.
std::optional<ScriptValue> ReadByName(model::Application& application, std::string_view name,
                                      std::string& error);

decltype(platform::TraceField::value) ToTraceValue(const ScriptValue& value);

/// As JSON in UTF-8.
std::string ToJson(const ScriptValue& value);

/// A JSON number, string, true or false, or an array of strings, of numbers or of arrays of
/// strings; nullopt for any other text. An empty array counts as one of strings.
std::optional<ScriptValue> ParseJson(std::string_view json);

/// True when `expected` is the value in JSON, or, for a text, the text itself as it stands.
bool Matches(const ScriptValue& value, TextView expected);

}  // namespace robot

// How words find their arguments in a line.
#pragma once

#include <vector>

#include "text/text.h"

namespace macro {

/// The line up to its first "//", wherever that stands.
TextView BeforeComment(TextView line);

/// What stands between the first '"' and the next one; empty where there is no such pair or
/// nothing between.
TextView Quoted(TextView line);

/// What lies between the first '(' and the last ')', cut at commas into at most `most` fields: the
/// last one keeps its commas. Without '(' nothing; without ')' up to the end.
std::vector<TextView> CallFields(TextView line, size_t most);

/// Without the carriage return and line feed at its end.
TextView WithoutLineEnd(TextView line);

/// Trimmed, without a '"' at its beginning and one at its end.
Text Unquoted(TextView text);

/// Trimmed; where a '"' begins it, without that and without the last character, whatever it is.
Text Unwrapped(TextView text);

/// The text after so many values of a call: one that begins with a '"' ends at its next one,
/// wherever a ')' stands; without a next one it is `otherwise` of the last field. Empty where there
/// are fewer values.
Text CallText(TextView line, size_t before, Text (*otherwise)(TextView));

/// Reads as a number, 0 where the field is not there.
double NumberField(const std::vector<TextView>& fields, size_t index);

}  // namespace macro

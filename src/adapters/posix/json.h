// JSON values as text, for the trace and for what the program prints.
#pragma once

#include <string>

#include "text/text.h"

namespace posix_adapter {

/// Quoted JSON string in UTF-8; control characters are escaped, lone surrogates become U+FFFD.
std::string JsonText(TextView value);

/// As JsonText, for text that is UTF-8 already.
std::string JsonUtf8(std::string_view value);

/// Whole numbers below 10^15 without a point, others in the shortest form that reads back the
/// same; what JSON cannot hold (not a number, infinite) is null.
std::string JsonNumber(double value);

}  // namespace posix_adapter

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

/// "[1,2]": every element by `write`.
template <class Elements, class Write>
std::string JsonArray(const Elements& elements, const Write& write) {
    std::string json = "[";
    for (const auto& element : elements) {
        json += (json.size() > 1 ? "," : "") + write(element);
    }
    return json + "]";
}

}  // namespace posix_adapter

// Names of controls and properties are compared without case.
#pragma once

#include <algorithm>
#include <string_view>

namespace model {

inline bool SameName(std::string_view a, std::string_view b) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return lower(x) == lower(y); });
}

}  // namespace model

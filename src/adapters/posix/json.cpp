#include "adapters/posix/json.h"

#include <charconv>
#include <cmath>
#include <cstdint>

namespace posix_adapter {

std::string JsonText(TextView value) {
    return JsonUtf8(text::ToUtf8(value));
}

std::string JsonUtf8(std::string_view value) {
    static constexpr char kHex[] = "0123456789abcdef";
    std::string result = "\"";
    for (const char c : value) {
        const auto byte = static_cast<unsigned char>(c);
        switch (c) {
            case '"':
                result += "\\\"";
                break;
            case '\\':
                result += "\\\\";
                break;
            case '\n':
                result += "\\n";
                break;
            case '\r':
                result += "\\r";
                break;
            case '\t':
                result += "\\t";
                break;
            default:
                if (byte < 0x20) {
                    result += "\\u00";
                    result += kHex[byte >> 4];
                    result += kHex[byte & 15];
                } else {
                    result += c;
                }
        }
    }
    return result + '"';
}

std::string JsonNumber(double value) {
    constexpr double kLargestWhole = 1e15;
    if (!std::isfinite(value)) {
        return "null";
    }
    if (value == std::floor(value) && std::abs(value) < kLargestWhole) {
        return std::to_string(static_cast<int64_t>(value));
    }
    char buffer[40];
    const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value);
    return error == std::errc() ? std::string(buffer, end) : "null";
}

}  // namespace posix_adapter

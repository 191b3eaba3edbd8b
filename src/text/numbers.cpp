#include "text/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <system_error>

namespace text {

namespace {

bool IsSkipped(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\n';
}

bool IsDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

/// The text without blanks up to its first character outside ASCII.
std::string Condensed(TextView value) {
    std::string result;
    for (const char16_t c : value) {
        if (IsSkipped(c)) {
            continue;
        }
        if (c == 0 || c >= 0x80) {
            break;
        }
        result.push_back(static_cast<char>(c >= u'a' && c <= u'z' ? c - 0x20 : c));
    }
    return result;
}

/// Value of the digits after a prefix &H or &O.
double ReadRadix(const std::string& digits, int base) {
    double value = 0;
    size_t at = 0;
    for (; at < digits.size(); ++at) {
        const char c = digits[at];
        int digit = base;
        if (c >= '0' && c <= '9') {
            digit = c - '0';
        } else if (c >= 'A' && c <= 'F') {
            digit = c - 'A' + 10;
        }
        if (digit >= base) {
            break;
        }
        value = value * base + digit;
    }
    // A mark '&' after the digits says 32 bits: &HFFFF& is 65535.
    const bool markedLong = at < digits.size() && digits[at] == '&';
    if (!markedLong && value > 0x7FFF && value <= 0xFFFF) {
        return value - 0x10000;
    }
    if (value > 0x7FFFFFFF && value <= 0xFFFFFFFF) {
        return value - 4294967296.0;
    }
    return value;
}

/// Decimal number at the start of a condensed text, in a form that from_chars takes.
struct Decimal {
    std::string mantissa;  // digits and at most one point
    std::string exponent;  // sign and digits, or empty
    bool negative = false;
};

Decimal SplitDecimal(const std::string& value) {
    Decimal result;
    size_t at = 0;
    if (at < value.size() && (value[at] == '+' || value[at] == '-')) {
        result.negative = value[at] == '-';
        ++at;
    }
    bool point = false;
    for (; at < value.size(); ++at) {
        if (value[at] == '.' && !point) {
            point = true;
        } else if (!IsDigit(static_cast<char16_t>(value[at]))) {
            break;
        }
        result.mantissa.push_back(value[at]);
    }
    if (at < value.size() && (value[at] == 'E' || value[at] == 'D')) {
        ++at;
        std::string exponent;
        if (at < value.size() && (value[at] == '+' || value[at] == '-')) {
            exponent = value[at] == '-' ? "-" : "";
            ++at;
        }
        const size_t firstDigit = at;
        for (; at < value.size() && IsDigit(static_cast<char16_t>(value[at])); ++at) {
            exponent.push_back(value[at]);
        }
        result.exponent = at > firstDigit ? exponent : std::string();
    }
    return result;
}

std::optional<double> DecimalValue(const Decimal& decimal) {
    const size_t firstNonZero = decimal.mantissa.find_first_not_of("0.");
    if (firstNonZero == std::string::npos) {
        return 0.0;
    }
    const std::string number =
        decimal.mantissa + (decimal.exponent.empty() ? "" : "e" + decimal.exponent);
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::result_out_of_range || std::isinf(value)) {
        const bool tiny = decimal.exponent.starts_with('-') ||
                          (decimal.exponent.empty() && decimal.mantissa.find('.') < firstNonZero);
        if (!tiny) {
            return std::nullopt;
        }
        value = 0;
    }
    return decimal.negative ? -value : value;
}

/// Reads a text digit by digit where Val fails: what stands before the point counts by its place,
/// a character in between that is no digit shifts what was read by one place.
double ReadDigits(TextView value) {
    const size_t length = value.size();
    const size_t point = InStr(value, u".");
    size_t place = point == 0 ? length + 1 : point;
    const size_t wholeEnd = place - 1;
    const auto power = [](size_t high, size_t low) {
        return std::pow(10.0, static_cast<double>(high) - static_cast<double>(low));
    };
    double whole = 0;
    for (size_t i = 1; i <= wholeEnd; ++i) {
        const char16_t c = value[i - 1];
        if (!IsDigit(c)) {
            whole /= 10;
        } else if (c != u'0') {
            whole += (c - u'0') * power(wholeEnd, i);
        }
    }
    double fraction = 0;
    for (size_t i = place + 1; i <= length; ++i) {
        const char16_t c = value[i - 1];
        if (IsDigit(c)) {
            fraction += (c - u'0') * power(place, i);
        } else {
            ++place;
        }
    }
    const double sign = InStr(value, u"-") != 0 ? -1 : 1;
    const double largest = std::numeric_limits<double>::max();
    return sign * std::min(whole + fraction, largest);
}

template <typename Whole>
std::optional<Whole> ToWhole(double value) {
    const double rounded = RoundHalfEven(value);
    if (!(rounded >= std::numeric_limits<Whole>::min() &&
          rounded <= std::numeric_limits<Whole>::max())) {
        return std::nullopt;
    }
    return static_cast<Whole>(rounded);
}

constexpr int kSignificantDigits = 15;

/// Digits without trailing zeros, and the power of ten of the first one.
struct Digits {
    std::string digits;
    int exponent = 0;
};

Digits SignificantDigits(double magnitude) {
    char buffer[40];
    const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, magnitude,
                                            std::chars_format::scientific, kSignificantDigits - 1);
    const std::string printed(buffer, error == std::errc() ? end : buffer);
    const size_t mark = printed.find('e');
    Digits result;
    result.digits = printed.substr(0, 1) + printed.substr(2, mark - 2);
    result.digits.resize(result.digits.find_last_not_of('0') + 1);
    const size_t sign = printed[mark + 1] == '+' ? 1 : 0;
    std::from_chars(printed.data() + mark + 1 + sign, printed.data() + printed.size(),
                    result.exponent);
    return result;
}

std::string PrintMagnitude(const Digits& number) {
    const int count = static_cast<int>(number.digits.size());
    const int decimals = count - 1 - number.exponent;
    if (number.exponent >= kSignificantDigits || decimals > kSignificantDigits) {
        std::string result = number.digits.substr(0, 1);
        if (count > 1) {
            result += "." + number.digits.substr(1);
        }
        const int size = std::abs(number.exponent);
        result += number.exponent < 0 ? "E-" : "E+";
        return result + (size < 10 ? "0" : "") + std::to_string(size);
    }
    if (number.exponent < 0) {
        return "." + std::string(static_cast<size_t>(-number.exponent - 1), '0') + number.digits;
    }
    if (decimals <= 0) {
        return number.digits + std::string(static_cast<size_t>(-decimals), '0');
    }
    const size_t whole = static_cast<size_t>(number.exponent) + 1;
    return number.digits.substr(0, whole) + "." + number.digits.substr(whole);
}

}  // namespace

std::optional<double> Val(TextView value) {
    const std::string condensed = Condensed(value);
    if (condensed.starts_with("&H")) {
        return ReadRadix(condensed.substr(2), 16);
    }
    if (condensed.starts_with("&O")) {
        return ReadRadix(condensed.substr(2), 8);
    }
    return DecimalValue(SplitDecimal(condensed));
}

double SafeNumber(TextView value) {
    const std::optional<double> read = Val(value);
    return read ? *read : ReadDigits(value);
}

Text HalfWidthNumber(TextView value) {
    constexpr TextView kWide = u"０１２３４５６７８９＋－−ー．。　";
    constexpr TextView kNarrow = u"0123456789+---.. ";
    static_assert(kWide.size() == kNarrow.size());
    Text result(value);
    for (char16_t& c : result) {
        if (const size_t at = kWide.find(c); at != TextView::npos) {
            c = kNarrow[at];
        }
    }
    return result;
}

double RoundHalfEven(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2) != 0);
    return up ? below + 1 : below;
}

std::optional<int16_t> ToInt16(double value) {
    return ToWhole<int16_t>(value);
}

std::optional<int32_t> ToInt32(double value) {
    return ToWhole<int32_t>(value);
}

double Int(double value) {
    return std::floor(value);
}

Text Str(double value) {
    if (value == 0 || std::isnan(value)) {
        return u" 0";
    }
    const double magnitude = std::min(std::abs(value), std::numeric_limits<double>::max());
    return (value < 0 ? u"-" : u" ") + FromUtf8(PrintMagnitude(SignificantDigits(magnitude)));
}

Text PrintedNumber(double value) {
    return Str(value) + u' ';
}

}  // namespace text

// Reading, printing and rounding numbers the way the file formats and dialogs mean it.
#pragma once

#include <cstdint>
#include <optional>

#include "text/text.h"

namespace text {

/// Leading number of a text; blanks, tabs and line feeds inside are skipped; reading stops at the
/// first character that cannot belong to a number; no number is 0. Takes sign, point, exponent
/// (E or D), and the prefixes &H and &O (16-bit values above 7FFF are negative, as are 32-bit
/// ones above 7FFFFFFF). Fails (nullopt) only where the number is too big for a double.
std::optional<double> Val(TextView value);

/// Val, and where Val fails a digit reader: see the function for its arithmetic. Never fails.
double SafeNumber(TextView value);

/// The text with its full-width digits, signs, point and blanks as ASCII has them, and all else as
/// it was. For numbers that a person typed: 「－」 and 「ー」 are the minus of a Japanese keyboard,
/// 「．」 and 「。」 its point.
Text HalfWidthNumber(TextView value);

/// Nearest whole number, ties to even.
double RoundHalfEven(double value);

/// RoundHalfEven into 16 or 32 bits; nullopt where it does not fit (or is not a number).
std::optional<int16_t> ToInt16(double value);
std::optional<int32_t> ToInt32(double value);

/// Floor: the whole number at or below the value.
double Int(double value);

/// Number with a blank in place of a plus sign and no trailing blank: 12 → " 12", -3 → "-3",
/// 0.5 → " .5". At most 15 significant digits.
Text Str(double value);

/// Number as a file line holds it: Str and one trailing blank: " 12 ".
Text PrintedNumber(double value);

}  // namespace text

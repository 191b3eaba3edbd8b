// What can be wrong with a number.
#pragma once

#include "macro/check_findings.h"

namespace macro {

/// What a number does that is none of the word's choices, for words that neither clip nor ignore.
Text EffectOfOtherValue(TextView word);

/// The argument of a word of the form KEY=value.
void CheckNumber(FindingList& found, const Keyword& keyword, TextView upper);

/// How a number in a call is made a whole one.
enum class Rounding { None, Nearest, Upwards };

struct FieldRule {
    Rounding rounding = Rounding::Nearest;
    double lowest = -32768, highest = 32767;
    const char16_t* outside = nullptr;  // effect of a value beyond; null: the nearer end
    double tolerance = 0;               // beyond, without a finding
};

/// A number between the brackets of a call.
void CheckNumberField(FindingList& found, const Keyword& keyword, TextView line, TextView field,
                      const FieldRule& rule);

}  // namespace macro

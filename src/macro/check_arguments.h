// What can be wrong with the arguments of a word.
#pragma once

#include <vector>

#include "macro/check.h"
#include "macro/keywords.h"

namespace macro {

/// What a number does that is none of the word's choices, for words that neither clip nor ignore.
Text EffectOfOtherValue(TextView word);

struct ArgumentCheck {
    platform::Files& files;
    CheckedSlide slide;
    std::vector<Finding> findings;
    int line = 0;  // of the line in work

    void Add(int column, Text wrong, Text effect);
    /// `upper` is the line in upper case.
    void Check(const Keyword& keyword, TextView text, TextView upper);
};

}  // namespace macro

// What can be wrong with the arguments of a word.
#pragma once

#include "macro/check_findings.h"

namespace macro {

/// `line` as it is written, `upper` in upper case.
void CheckArguments(FindingList& found, platform::Files& files, const CheckedSlide& slide,
                    const Keyword& keyword, TextView line, TextView upper);

}  // namespace macro

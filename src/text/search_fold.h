// Text as it is looked for.
#pragma once

#include "text/text.h"

namespace text {

/// Equal for texts that differ in case and width only: "ａ" and "A", "ﾊﾟ" and "パ", also where a
/// sound mark is a character of its own, as in names from other systems.
Text SearchFold(TextView value);

}  // namespace text

// Reads a macro file line by line and carries it out.
#pragma once

#include "macro/run.h"

namespace macro {

/// Carries out `run.source` to its end. GoOn: the end was reached and nothing waits; Jump: another
/// slide was chosen; Stop: the show stops, or a word of the part before the text failed.
Flow ReadLines(Run& run);

/// Columns that a character takes in the code page: 1 or 2.
int ColumnsOf(char16_t character);

}  // namespace macro

// A call as its writer meant it: quotes hold commas, brackets and comment marks together. The
// player cuts lines in simpler ways; where the two differ, the check has something to say.
#pragma once

#include <vector>

#include "text/text.h"

namespace macro {

struct CallField {
    TextView text;        // trimmed, with its quotes
    bool quoted = false;  // begins with a quote
    bool closed = false;  // and has its second one
    TextView inner;       // between the quotes; the whole text without them
    TextView stray;       // after the second quote
    bool absent = false;  // stands for a value that is not written
};

struct CallShape {
    TextView ahead;  // between the word and the bracket
    bool opened = false, closed = false;
    TextView all;  // between the brackets
    std::vector<CallField> fields;
};

/// `length`: of the word. A comment ends the call where it does not stand in quotes.
CallShape ShapeOf(TextView line, size_t length);

/// Without blanks, tabs and wide blanks at both ends.
TextView Bare(TextView part);

}  // namespace macro

// What the check of a macro has found so far.
#pragma once

#include <vector>

#include "macro/finding.h"
#include "macro/keywords.h"

namespace macro {

/// Kinds of mistakes. Each has a name for programs and what usually mends it.
enum class Flaw {
    Word,       // no word of the language
    Indent,     // a blank before a word
    Swallowed,  // a text that begins like a word
    Mark,       // the mark of the text a second time
    Comment,    // "//" where it does something else than meant
    Equals,
    Number,  // not a number, or not all of it
    Length,  // more characters than are read
    Fraction,
    Range,
    NoEffect,
    Bracket,
    Quote,
    Fields,   // too few values
    Surplus,  // more than is read
    File,
    Jump,
    Piece,
    Loop,
    Unreached,
    Colour,
    OffScreen,
};

struct FindingList {
    int line = 0;  // of the line in work
    std::vector<Finding> rows;

    /// `remedy`: where it is not the usual one of the flaw.
    void Add(Flaw flaw, int column, Text wrong, Text effect, Text remedy = {});
};

/// How the word is written: 「RGB(r,g,b)」の形で書いてください.
Text WriteLike(const Keyword& keyword);

/// A number as findings show it.
Text Shown(double value);

/// Place of a part of the line, from 1.
int ColumnOf(TextView line, TextView part);

}  // namespace macro

// The words of the macro language: one row each, in the order in which a line is tested for them.
#pragma once

#include <span>

#include "macro/run.h"

namespace macro {

/// How a word takes its argument.
enum class Form {
    Number,  // KEY=value
    Quoted,  // KEY="text"
    Call,    // KEY(a,b,…)
    Bare,    // KEY
    Comment,
};

/// What becomes of a number outside the range.
struct BadValue {
    enum Kind {
        Unbounded,  // there is none: the word takes any number
        Clipped,    // to the nearer end of the range
        Ignored,    // the word does nothing
        Replaced,   // by the number that follows
    } kind = Unbounded;
    double replacement = 0;
};

/// What an argument must be apart from its range.
enum class Number {
    Real,
    Down,   // rounded down, 0.1 being added first; must fit in 16 bits
    Whole,  // to the nearest whole number, halves to the even one; must fit in 16 bits
};

/// How long a setting holds.
enum class Scope {
    None,      // it is no setting
    Slide,     // for this slide
    Show,      // until changed or until the next START
    Document,  // changes what the menus set, and is saved with it
};

struct Range {
    double lowest = 0, highest = 0;
};

/// The start values are those of the most common word, KEY=n with any number.
struct Keyword {
    TextView name;  // upper case
    Form form = Form::Number;
    TextView arguments = u"=n";  // as the manual shows them after the name
    Range range = {};
    BadValue badValue = {};
    Scope scope = Scope::None;
    Number number = Number::Real;
    size_t digits = 5;      // characters of a number that are read
    bool setsLine = false;  // the handler leaves a line of its own for what follows
    /// `value` is the number after '=', made to fit `range` and `number`; 0 for other forms. The
    /// line is emptied when the handler has returned, unless `setsLine`.
    Flow (*handler)(Run& run, double value) = nullptr;
    TextView documentation;  // one line of the manual
};

/// All words, in the order in which a line is tested for them (keyword_table.cpp).
std::span<const Keyword> Keywords();

/// Runs the line in work against every word, in order. A word that runs empties the line, so that
/// the words after it find nothing. Between CURRENTX and CURRENTY the pens go to the margin.
/// A number beyond its word's 16 bits fails.
Flow RunKeywords(Run& run);

/// The number after '=' as its word takes it; 0 for other forms.
struct NumberRead {
    double value = 0;
    bool ignored = false;  // the word does nothing
    bool fails = false;    // it does not fit into 16 bits
};

/// `argStart`: place after the first '=', from 1; 1 without one.
NumberRead ReadNumber(const Keyword& keyword, TextView upperLine, size_t argStart);

/// Number of a line for a word: its `digits` characters from the place after the first '=', or
/// from the beginning of the line without one.
double NumberArgument(const Run& run, size_t digits);

/// The line that begins the text.
constexpr TextView kTextSection = u"[テキスト]";

}  // namespace macro

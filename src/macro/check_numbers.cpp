#include "macro/check_numbers.h"

#include <algorithm>
#include <cmath>

#include "macro/call_shape.h"
#include "text/numbers.h"

namespace macro {

namespace {

constexpr TextView kFails = u"[テキスト] の前ではマクロがここで終わり、後ではこの行が捨てられます";

/// Words that do something with a number that is none of their choices.
struct OtherEffect {
    const char16_t* word;
    const char16_t* effect;
};
constexpr OtherEffect kOtherEffects[] = {
    {u"OVERLAP", u"値は覚えられますが、メニューは変わりません"},
    {u"SCREENXY", u"座標原点は変わらず、表示位置だけが原点に戻ります"},
};

/// Values within the range that are taken and do something else than they say.
struct IdleValues {
    const char16_t* word;
    double above, below;  // the values between
    const char16_t* effect;
    const char16_t* remedy;
};
constexpr IdleValues kIdleValues[] = {
    {u"DOWNSIZE", 6, 101, u"何もしません", u"0～6の数にしてください"},
    {u"WINSTATE", 0, 2, u"何もしません", u"0か2にしてください"},
    {u"LOOP", -32769, 1, u"1回だけ実行されます", u"1以上の数にしてください"},
};

/// Words whose handlers take whole numbers though their rows do not say so.
struct LateRounding {
    const char16_t* word;
    bool down = false;            // else to the nearest
    const char16_t* since = u"";  // from when on
};
constexpr LateRounding kLateRoundings[] = {
    {u"SOUNDSET"},
    {u"KOUKA"},
    {u"DELKOUKA"},
    {u"DOWNSIZE", true},
    {u"KOUKASP", true},
    {u"DELKOUKASP", true},
    {u"INTERVAL", false, u"次のスライドからは "},
};

const LateRounding* LateRoundingOf(const Keyword& keyword) {
    for (const LateRounding& row : kLateRoundings) {
        if (keyword.name == row.word) {
            return &row;
        }
    }
    return nullptr;
}

size_t Digits(TextView part, size_t at) {
    const size_t end = part.find_first_not_of(u"0123456789", at);
    return std::min(end, part.size()) - std::min(at, part.size());
}

/// The number that a part begins with as a person sees it; empty without one.
TextView PlainNumber(TextView part) {
    if (part.starts_with(u"&H") || part.starts_with(u"&O")) {
        const TextView digits = part[1] == u'H' ? u"0123456789ABCDEF" : u"01234567";
        const size_t end = std::min(part.find_first_not_of(digits, 2), part.size());
        return end > 2 ? part.substr(0, end) : TextView();
    }
    size_t at = part.starts_with(u'-') || part.starts_with(u'+') ? 1 : 0;
    const size_t whole = Digits(part, at);
    at += whole;
    size_t fraction = 0;
    if (part.substr(at).starts_with(u'.')) {
        fraction = Digits(part, at + 1);
        at += 1 + fraction;
    }
    return whole + fraction > 0 ? part.substr(0, at) : TextView();
}

/// What of a number after '=' is written: up to a blank or a comment.
TextView WrittenNumber(TextView upper, size_t start) {
    TextView rest = upper.substr(std::min(start, upper.size()));
    rest = rest.substr(std::min(rest.find_first_not_of(u" \t"), rest.size()));
    rest = rest.substr(0, rest.find(u"//"));
    return rest.substr(0, rest.find_first_of(u" \t"));
}

/// True for what looks like more of the number and is not read.
bool GoesOn(TextView rest) {
    constexpr TextView kMore = u",.+-*/%:0123456789０１２３４５６７８９．，－＋";
    return !rest.empty() && kMore.find(rest.front()) != TextView::npos;
}

Text Named(const Keyword& keyword, TextView what) {
    return Text(keyword.name) + u"の値" + Text(what);
}

/// What the player makes of the number that is written at the column.
struct Reading {
    int column;
    TextView written, plain;
    bool reachesSlice;  // the plain number goes beyond what is read
    double value;
};

/// What becomes of a line whose number is another than its writer meant.
Text InTheEnd(const Keyword& keyword, TextView upper, size_t argStart) {
    const NumberRead read = ReadNumber(keyword, upper, argStart);
    return read.ignored ? Text(u"この行は無視されます") : Shown(read.value) + u" として扱われます";
}

void CheckReading(FindingList& found, const Keyword& keyword, const Reading& read) {
    const Text taken = Shown(read.value) + u" として扱われます";
    const TextView rest = read.written.substr(read.plain.size());
    if (read.reachesSlice) {
        const Text digits = Shown(double(keyword.digits)) + u"文字";
        found.Add(Flaw::Length, read.column, Named(keyword, u"は「=」から") + digits + u"までです",
                  taken, digits + u"以内で書いてください");
    } else if (read.value != text::SafeNumber(read.plain)) {
        found.Add(Flaw::Comment, read.column, Named(keyword, u"の後ろの文字も数として読まれます"),
                  taken, u"数のすぐ後ろに「//」を続けてください");
    } else if (GoesOn(rest)) {
        found.Add(Flaw::Number, read.column + static_cast<int>(read.plain.size()),
                  Named(keyword, u"の「") + Text(rest) + u"」は読まれません", taken);
    }
}

void CheckRange(FindingList& found, const Keyword& keyword, int column, double value) {
    const Text range = Shown(keyword.range.lowest) + u"～" + Shown(keyword.range.highest);
    const Text wrong = Named(keyword, u" ") + Shown(value) + u" が範囲（" + range + u"）の外です";
    Text effect;
    switch (keyword.badValue.kind) {
        case BadValue::Clipped:
            effect = Shown(std::clamp(value, keyword.range.lowest, keyword.range.highest)) +
                     u" になります";
            break;
        case BadValue::Ignored:
            effect = u"この行は無視されます";
            break;
        case BadValue::Replaced:
            effect = Shown(keyword.badValue.replacement) + u" になります";
            break;
        case BadValue::Unbounded:
            effect = EffectOfOtherValue(keyword.name);
            break;
    }
    found.Add(Flaw::Range, column, wrong, effect, range + u" の数にしてください");
}

double Whole(const Keyword& keyword, double value) {
    if (keyword.number == Number::Down) {
        return text::Int(value + 0.1);
    }
    if (keyword.number == Number::Whole) {
        return text::RoundHalfEven(value);
    }
    const LateRounding* late = LateRoundingOf(keyword);
    return late == nullptr ? value : late->down ? text::Int(value) : text::RoundHalfEven(value);
}

void CheckValue(FindingList& found, const Keyword& keyword, int column, double value) {
    const double whole = Whole(keyword, value);
    const double ranged = keyword.number == Number::Real ? value : whole;
    // The range 0 to 0 stands for any number; others are a choice.
    const bool choice = keyword.range.lowest != keyword.range.highest;
    if (keyword.badValue.kind == BadValue::Unbounded && keyword.number != Number::Real &&
        !text::ToInt16(whole)) {
        found.Add(Flaw::Range, column, Named(keyword, u"が大きすぎます"), Text(kFails),
                  u"-32768～32767 の数にしてください");
        return;
    }
    if (choice && (ranged < keyword.range.lowest || ranged > keyword.range.highest)) {
        CheckRange(found, keyword, column, ranged);
        return;
    }
    for (const IdleValues& row : kIdleValues) {
        if (keyword.name == row.word && value > row.above && value < row.below) {
            found.Add(Flaw::NoEffect, column,
                      Named(keyword, u" ") + Shown(value) + u" は使えません", row.effect,
                      row.remedy);
            return;
        }
    }
    if (whole != value) {
        const LateRounding* late = LateRoundingOf(keyword);
        found.Add(Flaw::Fraction, column,
                  Named(keyword, u" ") + Shown(value) + u" は整数ではありません",
                  Text(late != nullptr ? late->since : u"") + Shown(whole) + u" として扱われます");
    }
}

/// One part of POSITION, in percent.
void CheckPercent(FindingList& found, const Keyword& keyword, int column, double value) {
    const double kept = std::clamp(value, 0.0, 100.0);
    if (kept != value) {
        found.Add(Flaw::Range, column,
                  Named(keyword, u" ") + Shown(value) + u" が範囲（0～100）の外です",
                  Shown(kept) + u" になります", u"0～100 の数にしてください");
    }
}

void CheckPosition(FindingList& found, const Keyword& keyword, TextView upper, size_t start) {
    const TextView slice = upper.substr(start, keyword.digits);
    const TextView written = WrittenNumber(upper, start);
    const int column = ColumnOf(upper, written);
    const size_t point = slice.find(u'.');
    const size_t own = written.find(u'.');
    if (point == TextView::npos) {
        const double mode = text::SafeNumber(slice.substr(0, 5));
        if (PlainNumber(written).empty() || (mode != 0 && mode != 1)) {
            found.Add(Flaw::NoEffect, column, u"POSITIONの値に「.」がありません",
                      u"PICRND=" + Shown(mode) + u" と同じになります", WriteLike(keyword));
        }
        return;
    }
    const double x = text::SafeNumber(slice.substr(0, point));
    const double y = text::SafeNumber(slice.substr(point + 1));
    const Text place = u"横" + Shown(x) + u"％、縦" + Shown(y) + u"％として扱われます";
    const TextView ownX = written.substr(0, own);
    const TextView ownY = own == TextView::npos ? TextView() : written.substr(own + 1);
    const size_t end = start + keyword.digits;
    const bool cut = own != TextView::npos &&
                     static_cast<size_t>(column) - 1 + own + 1 + PlainNumber(ownY).size() > end;
    if (cut) {
        found.Add(Flaw::Length, column, u"POSITIONの値は「=」から8文字までです", place,
                  u"8文字以内で書いてください");
    } else if (own == TextView::npos || x != text::SafeNumber(ownX) ||
               y != text::SafeNumber(ownY)) {
        found.Add(Flaw::Comment, column, u"POSITIONの値が注釈まで読まれます", place,
                  u"注釈は「=」から8文字より後ろに書いてください");
    } else if (PlainNumber(ownX).empty() || PlainNumber(ownY).empty()) {
        found.Add(Flaw::Number, column, u"POSITIONの値が数ではありません", place,
                  WriteLike(keyword));
    } else {
        CheckPercent(found, keyword, column, x);
        CheckPercent(found, keyword, column + static_cast<int>(own) + 1, y);
    }
}

}  // namespace

Text EffectOfOtherValue(TextView word) {
    for (const OtherEffect& row : kOtherEffects) {
        if (word == row.word) {
            return row.effect;
        }
    }
    return u"この値では何も変わりません";
}

void CheckNumber(FindingList& found, const Keyword& keyword, TextView upper) {
    const size_t length = keyword.name.size();
    const size_t equals = upper.find(u'=');
    const size_t argStart = equals == TextView::npos ? 1 : equals + 2;
    if (equals == TextView::npos || upper.find(u"//") < equals) {
        found.Add(Flaw::Equals, static_cast<int>(length) + 1,
                  Text(keyword.name) + u"に「=」がありません",
                  u"値は " + InTheEnd(keyword, upper, argStart), WriteLike(keyword));
        return;
    }
    if (const TextView between = Bare(upper.substr(length, equals - length)); !between.empty()) {
        found.Add(Flaw::Surplus, ColumnOf(upper, between),
                  Text(keyword.name) + u"と「=」の間に「" + Text(between) + u"」があります",
                  Text(keyword.name) + u"として扱われます");
    }
    if (keyword.name == u"POSITION") {
        CheckPosition(found, keyword, upper, equals + 1);
        return;
    }
    const TextView written = WrittenNumber(upper, equals + 1);
    Reading read{};
    read.written = written;
    read.plain = PlainNumber(written);
    read.column = written.empty() ? static_cast<int>(equals) + 2 : ColumnOf(upper, written);
    read.value = text::SafeNumber(upper.substr(equals + 1, keyword.digits));
    read.reachesSlice =
        static_cast<size_t>(read.column) - 1 + read.plain.size() > equals + 1 + keyword.digits &&
        read.value != text::SafeNumber(read.plain);
    if (read.plain.empty()) {
        found.Add(Flaw::Number, read.column, Named(keyword, u"が数ではありません"),
                  InTheEnd(keyword, upper, argStart));
        return;
    }
    CheckReading(found, keyword, read);
    CheckValue(found, keyword, read.column, read.value);
}

void CheckNumberField(FindingList& found, const Keyword& keyword, TextView line, TextView field,
                      const FieldRule& rule) {
    const int column = ColumnOf(line, field);
    const Text upper = text::Upper(field);
    const TextView plain = PlainNumber(upper);
    const double value = text::SafeNumber(upper);
    const Text taken = Shown(value) + u" として扱われます";
    if (plain.empty()) {
        found.Add(Flaw::Number, column,
                  Named(keyword, field.empty() ? u"がありません" : u"が数ではありません"), taken);
        return;
    }
    if (plain.size() != upper.size()) {
        found.Add(Flaw::Number, column,
                  Named(keyword, u"の「") + Text(field.substr(plain.size())) + u"」が余分です",
                  taken);
    }
    if (value < rule.lowest - rule.tolerance || value > rule.highest + rule.tolerance) {
        const double kept = std::clamp(value, rule.lowest, rule.highest);
        const Text range = Shown(rule.lowest) + u"～" + Shown(rule.highest);
        found.Add(Flaw::Range, column,
                  Named(keyword, u" ") + Shown(value) + u" が範囲（" + range + u"）の外です",
                  rule.outside != nullptr ? Text(rule.outside) : Shown(kept) + u" になります",
                  range + u" の数にしてください");
        return;
    }
    const double whole = rule.rounding == Rounding::Nearest ? text::RoundHalfEven(value)
                         : rule.rounding == Rounding::Upwards
                             ? std::copysign(std::ceil(std::abs(value)), value)
                             : value;
    if (whole != value) {
        found.Add(Flaw::Fraction, column,
                  Named(keyword, u" ") + Shown(value) + u" は整数ではありません",
                  Shown(whole) + u" として扱われます");
    }
}

}  // namespace macro

#include "macro/check_arguments.h"

#include <algorithm>

#include "macro/arguments.h"
#include "macro/cutouts.h"
#include "macro/named_files.h"
#include "text/numbers.h"

namespace macro {

namespace {

constexpr double kLargest16 = 32767;

Text Shown(double value) {
    return text::Trim(text::Str(value));
}

bool HoldsNumber(TextView field) {
    return field.find_first_of(u"0123456789") != TextView::npos;
}

int ColumnOf(TextView line, TextView part) {
    return static_cast<int>(part.data() - line.data()) + 1;
}

/// What of a number behind '=' is written, up to a blank or comment.
TextView WrittenNumber(TextView upper, size_t start) {
    TextView rest = upper.substr(std::min(start, upper.size()));
    rest = rest.substr(std::min(rest.find_first_not_of(u" \t"), rest.size()));
    return rest.substr(0, rest.find_first_of(u" \t/"));
}

/// Words that do something with a number that is none of their choices.
struct OtherEffect {
    const char16_t* word;
    const char16_t* effect;
};
constexpr OtherEffect kOtherEffects[] = {
    {u"OVERLAP", u"値は覚えられますが、メニューは変わりません"},
    {u"SCREENXY", u"座標原点は変わらず、表示位置だけが原点に戻ります"},
};

void CheckRange(ArgumentCheck& check, const Keyword& keyword, int column, double value) {
    const Text range = Shown(keyword.range.lowest) + u"～" + Shown(keyword.range.highest);
    const Text wrong =
        Text(keyword.name) + u"の値 " + Shown(value) + u" が範囲（" + range + u"）の外です";
    switch (keyword.badValue.kind) {
        case BadValue::Clipped:
            check.Add(column, wrong,
                      Shown(std::clamp(value, keyword.range.lowest, keyword.range.highest)) +
                          u" になります");
            return;
        case BadValue::Ignored:
            check.Add(column, wrong, u"この行は無視されます");
            return;
        case BadValue::Replaced:
            check.Add(column, wrong, Shown(keyword.badValue.replacement) + u" になります");
            return;
        case BadValue::Unbounded:
            // The range 0 to 0 stands for any number; others are a choice.
            if (keyword.range.lowest != keyword.range.highest) {
                check.Add(column, wrong, EffectOfOtherValue(keyword.name));
            }
            return;
    }
}

void CheckNumber(ArgumentCheck& check, const Keyword& keyword, TextView upper) {
    const size_t equals = upper.find(u'=');
    if (equals == TextView::npos) {
        check.Add(static_cast<int>(keyword.name.size()) + 1,
                  Text(keyword.name) + u"に「=」がありません", u"値は 0 として扱われます");
        return;
    }
    const TextView written = WrittenNumber(upper, equals + 1);
    const int column = written.empty() ? static_cast<int>(equals) + 2 : ColumnOf(upper, written);
    const TextView taken = upper.substr(equals + 1, keyword.digits);
    const double value = text::SafeNumber(taken);
    if (keyword.name == u"POSITION") {
        return;
    }
    if (!HoldsNumber(taken)) {
        check.Add(column, Text(keyword.name) + u"の値が数ではありません", u"0 として扱われます");
    } else if (text::SafeNumber(written) != value) {
        check.Add(column,
                  Text(keyword.name) + u"の値は「=」から" + Shown(double(keyword.digits)) +
                      u"文字までです",
                  Shown(value) + u" として扱われます");
    }
    const bool bounded = keyword.badValue.kind != BadValue::Unbounded;
    const bool choice = keyword.range.lowest != keyword.range.highest;
    if (!bounded && keyword.number != Number::Real && std::abs(value) > kLargest16) {
        check.Add(column, Text(keyword.name) + u"の値が大きすぎます",
                  u"[テキスト] の前ではマクロがここで終わり、後ではこの行が捨てられます");
    } else if (choice && (value < keyword.range.lowest || value > keyword.range.highest)) {
        CheckRange(check, keyword, column, value);
    }
}

void CheckQuoted(ArgumentCheck& check, const Keyword& keyword, TextView line) {
    const TextView value = Quoted(line);
    // An empty pair stands in every file that began as the template, and is meant to do nothing.
    const bool emptyPair = line.substr(std::min(line.find(u'"'), line.size())).starts_with(u"\"\"");
    if (value.empty() && !emptyPair) {
        check.Add(static_cast<int>(keyword.name.size()) + 1,
                  Text(keyword.name) + u"に \"～\" で囲んだ文字がありません", u"何もしません");
    } else if (keyword.name == u"BACKCOLOR" && !value.empty() && value.size() != 6) {
        check.Add(ColumnOf(line, value), u"BACKCOLORの色が6文字ではありません",
                  u"000000 になります");
    }
}

/// Fields of a call that are numbers, each within the word's own bounds.
struct NumberFields {
    const char16_t* word;
    size_t count;
    double lowest, highest[7];
};
constexpr NumberFields kNumberFields[] = {
    {u"RGB", 3, 0, {255, 255, 255}},
    {u"GRAD", 6, 0, {255, 255, 255, 255, 255, 255}},
    {u"TEXTOUT", 3, 0, {999, 999, 360}},
};

void CheckClipped(ArgumentCheck& check, const Keyword& keyword, TextView line) {
    for (const NumberFields& row : kNumberFields) {
        if (keyword.name != row.word) {
            continue;
        }
        const auto fields = CallFields(line, row.count + 1);
        for (size_t i = 0; i < row.count && i < fields.size(); ++i) {
            const double value = text::SafeNumber(fields[i]);
            const double kept = std::clamp(value, row.lowest, row.highest[i]);
            if (kept != value) {
                check.Add(ColumnOf(line, fields[i]),
                          Text(keyword.name) + u"の値 " + Shown(value) + u" が範囲（" +
                              Shown(row.lowest) + u"～" + Shown(row.highest[i]) + u"）の外です",
                          Shown(kept) + u" になります");
            }
        }
    }
}

/// The parts between double quotes.
std::vector<TextView> QuotedParts(TextView line) {
    std::vector<TextView> parts;
    for (size_t first = line.find(u'"'); first != TextView::npos;) {
        const size_t last = line.find(u'"', first + 1);
        if (last == TextView::npos) {
            break;
        }
        parts.push_back(line.substr(first + 1, last - first - 1));
        first = line.find(u'"', last + 1);
    }
    return parts;
}

void CheckFiles(ArgumentCheck& check, const Keyword& keyword, TextView line) {
    const bool named = keyword.name == u"MOVIE" || keyword.name == u"PLAYWAV" ||
                       keyword.name == u"PICPB" || keyword.name == u"PICPBDATA";
    if (!named) {
        return;
    }
    const size_t comment = line.find(u"//");
    const auto whole = QuotedParts(line);
    for (const TextView part : whole) {
        const size_t start = static_cast<size_t>(part.data() - line.data());
        if (comment != TextView::npos && comment > start && comment < start + part.size()) {
            check.Add(static_cast<int>(comment) + 1, u"ファイル名の中に「//」があります",
                      u"そこから後ろは注釈として捨てられます");
            return;
        }
    }
    for (const TextView part : QuotedParts(BeforeComment(line))) {
        const auto path = keyword.name == u"MOVIE" ? NamedVideo : NamedFile;
        if (!part.empty() && !check.files.Exists(path(check.files, check.slide.folder, part))) {
            check.Add(ColumnOf(line, part), u"「" + Text(part) + u"」がありません",
                      u"表示も再生もされません");
        }
    }
}

/// `ahead`: slides from this one to the one that would be shown.
void CheckJump(ArgumentCheck& check, const Keyword& keyword, int column, double ahead) {
    const double target = check.slide.index + ahead;
    if (check.slide.count == 0 || (target >= 1 && target <= check.slide.count)) {
        return;
    }
    check.Add(column, Text(keyword.name) + u"の移動先がスライドリストの外です",
              target < 1 ? u"最初のスライドへ移ります" : u"最後のスライドへ移ります");
}

void CheckJumps(ArgumentCheck& check, const Keyword& keyword, TextView line) {
    if (keyword.name == u"SKIP") {
        const double slides =
            text::SafeNumber(line.substr(std::min(line.find(u'='), line.size() - 1) + 1));
        if (slides != 0) {
            CheckJump(check, keyword, 1, slides + 1);
        }
        return;
    }
    const size_t count = keyword.name == u"YESNOPB"                            ? 2
                         : keyword.name == u"MENU" || keyword.name == u"PICPB" ? 1
                                                                               : 0;
    const auto fields = CallFields(line, 3);
    for (size_t i = 0; i < count && i < fields.size(); ++i) {
        const double slides = text::SafeNumber(fields[i]);
        if (slides != 0) {
            CheckJump(check, keyword, ColumnOf(line, fields[i]), slides);
        }
    }
}

void CheckObjectNumber(ArgumentCheck& check, const Keyword& keyword, TextView line) {
    const size_t length = keyword.name.size();
    double number = 0;
    if (keyword.name == u"MENU") {
        if (text::SafeNumber(text::Mid(line, length + 1, 1)) < 1 ||
            text::SafeNumber(text::Mid(line, length + 1, 1)) > 5) {
            check.Add(static_cast<int>(length) + 1, u"メニュー番号は1～5です",
                      u"ボタンは出ず、このスライドは止めるまで待ち続けます");
        }
        return;
    }
    if (keyword.name == u"PICPB" || keyword.name == u"MOVPB") {
        number = text::SafeNumber(text::Mid(line, length + 1, 2));
    } else if (keyword.name == u"PICPBDATA") {
        number = NumberField(CallFields(line, 2), 0);
    } else {
        return;
    }
    if (number > kLastCutout || number < 0) {
        check.Add(static_cast<int>(length) + 1, u"切取画像の番号は0～62です",
                  u"何も表示されません");
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

void ArgumentCheck::Add(int column, Text wrong, Text effect) {
    findings.push_back({line, column, std::move(wrong), std::move(effect)});
}

void ArgumentCheck::Check(const Keyword& keyword, TextView text, TextView upper) {
    switch (keyword.form) {
        case Form::Number:
            CheckNumber(*this, keyword, upper);
            break;
        case Form::Quoted:
            CheckQuoted(*this, keyword, text);
            break;
        case Form::Call:
            CheckClipped(*this, keyword, text);
            CheckObjectNumber(*this, keyword, text);
            break;
        case Form::Bare:
        case Form::Comment:
            return;
    }
    CheckFiles(*this, keyword, text);
    CheckJumps(*this, keyword, text);
}

}  // namespace macro
